#pragma once

#include "framework/settings/widgets/basepropertyview.h"

class EditableLabel;

class StringPropertyView : public BasePropertyView
{
    Q_OBJECT

public:
    explicit StringPropertyView(AbstractMetaDescription *description, QWidget *parent = nullptr);

protected slots:
    void metaValueChanged(const QVariant &value) override;

private:
    QPointer<EditableLabel> m_line;
};
