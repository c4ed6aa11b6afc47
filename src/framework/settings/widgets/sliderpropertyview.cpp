#include "framework/settings/widgets/sliderpropertyview.h"

#include "framework/settings/widgets/propertytext.h"

#include "framework/settings/abstractmetadescription.h"
#include "framework/settings/valuetext.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>

namespace {

constexpr int BoxStretch = 100;

template <typename Control>
void showNumber(Control *control, int number)
{
    if (!control || control->value() == number)
        return;
    const QSignalBlocker blocker(control);
    control->setValue(number);
}

} // namespace

SliderPropertyView::SliderPropertyView(AbstractMetaDescription *description, QWidget *parent)
    : BasePropertyView(description, parent)
    , m_slider(new QSlider(Qt::Horizontal))
    , m_box(new QSpinBox)
{
    const int min = ValueText::cutToInt(description->min);
    const int max = ValueText::cutToInt(description->max);
    const int step = ValueText::cutToInt(description->step);
    m_slider->setRange(min, max);
    m_slider->setSingleStep(step);
    m_box->setRange(min, max);
    m_box->setSingleStep(step);
    m_box->setPrefix(PropertyText::translated(description->prefix));
    m_box->setSuffix(PropertyText::translated(description->suffix));

    auto *both = new QWidget;
    auto *layout = new QHBoxLayout(both);
    layout->setContentsMargins({});
    layout->addWidget(m_slider);
    layout->addWidget(m_box, BoxStretch, Qt::AlignLeft);
    both->setFocusProxy(m_slider);
    nameControl(m_slider);
    nameControl(m_box);
    setEditor(both);

    connect(m_slider, &QSlider::valueChanged, this, [this](int value) { write(value); });
    connect(m_box, &QSpinBox::valueChanged, this, [this](int value) { write(value); });
    SliderPropertyView::metaValueChanged(description->getValue());
}

void SliderPropertyView::metaValueChanged(const QVariant &value)
{
    showNumber(m_slider.data(), value.toInt());
    showNumber(m_box.data(), value.toInt());
    setDefaultButtonChecked(value.toString() == description()->defaultText);
}
