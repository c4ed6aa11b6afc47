#pragma once

#include "framework/settings/widgets/basepropertyview.h"

class QSpinBox;

class IntPropertyView : public BasePropertyView
{
    Q_OBJECT

public:
    explicit IntPropertyView(AbstractMetaDescription *description, QWidget *parent = nullptr);

    /// These step only if the property declares a step.
    void up() override;
    void down() override;

protected slots:
    void metaValueChanged(const QVariant &value) override;

private:
    QPointer<QSpinBox> m_box;
};
