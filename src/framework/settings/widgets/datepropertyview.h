#pragma once

#include "framework/settings/widgets/basepropertyview.h"

class QDateEdit;

class DatePropertyView : public BasePropertyView
{
    Q_OBJECT

public:
    explicit DatePropertyView(AbstractMetaDescription *description, QWidget *parent = nullptr);

protected slots:
    void metaValueChanged(const QVariant &value) override;

private:
    QPointer<QDateEdit> m_edit;
};
