#include "framework/settings/widgets/intpropertyview.h"

#include "framework/settings/abstractmetadescription.h"
#include "framework/settings/valuetext.h"

#include <QSignalBlocker>
#include <QSpinBox>

#include <limits>

IntPropertyView::IntPropertyView(AbstractMetaDescription *description, QWidget *parent)
    : BasePropertyView(description, parent)
    , m_box(new QSpinBox(this))
{
    using Limits = std::numeric_limits<int>;
    m_box->setMinimum(description->hasMin ? ValueText::cutToInt(description->min) : Limits::min());
    m_box->setMaximum(description->hasMax ? ValueText::cutToInt(description->max) : Limits::max());
    if (description->hasStep)
        m_box->setSingleStep(ValueText::cutToInt(description->step));
    m_box->setPrefix(translatedSuffixOrPrefix(description->prefix));
    m_box->setSuffix(translatedSuffixOrPrefix(description->suffix));
    setEditor(m_box);
    connect(m_box, &QSpinBox::valueChanged, this, [this](int value) { write(value); });
    IntPropertyView::metaValueChanged(description->getValue());
}

void IntPropertyView::up()
{
    if (m_box && description() && description()->hasStep)
        m_box->stepUp();
}

void IntPropertyView::down()
{
    if (m_box && description() && description()->hasStep)
        m_box->stepDown();
}

void IntPropertyView::metaValueChanged(const QVariant &value)
{
    // A wider integer shows at the end of the range rather than wrapped around.
    const int number = ValueText::cutToInt(value.toDouble());
    if (m_box && m_box->value() != number) {
        const QSignalBlocker blocker(m_box);
        m_box->setValue(number);
    }
    setDefaultButtonChecked(value.toLongLong() == description()->defaultText.toLongLong());
}
