#pragma once

#include "framework/settings/widgets/basepropertyview.h"

class QSlider;
class QSpinBox;

/// A slider and a number beside it, either of which writes.
class SliderPropertyView : public BasePropertyView
{
    Q_OBJECT

public:
    explicit SliderPropertyView(AbstractMetaDescription *description, QWidget *parent = nullptr);

protected slots:
    void metaValueChanged(const QVariant &value) override;

private:
    QPointer<QSlider> m_slider;
    QPointer<QSpinBox> m_box;
};
