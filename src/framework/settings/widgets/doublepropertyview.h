#pragma once

#include "framework/settings/widgets/basepropertyview.h"

class DoubleSpinBoxWithSuggestions;

class DoublePropertyView : public BasePropertyView
{
    Q_OBJECT

public:
    explicit DoublePropertyView(AbstractMetaDescription *description, QWidget *parent = nullptr);

protected slots:
    void metaValueChanged(const QVariant &value) override;

private:
    QPointer<DoubleSpinBoxWithSuggestions> m_box;
};
