#pragma once

#include "framework/settings/widgets/basepropertyview.h"

class QCheckBox;

class BoolPropertyView : public BasePropertyView
{
    Q_OBJECT

public:
    explicit BoolPropertyView(AbstractMetaDescription *description, QWidget *parent = nullptr);

protected slots:
    void metaValueChanged(const QVariant &value) override;

private:
    QPointer<QCheckBox> m_box;
};
