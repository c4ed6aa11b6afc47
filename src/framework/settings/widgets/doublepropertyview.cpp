#include "framework/settings/widgets/doublepropertyview.h"

#include "framework/settings/widgets/doublespinboxwithsuggestions.h"
#include "framework/settings/widgets/numberlimits.h"
#include "framework/settings/widgets/suggestions.h"

#include "framework/settings/abstractmetadescription.h"

#include <QSignalBlocker>

using namespace Qt::StringLiterals;

DoublePropertyView::DoublePropertyView(AbstractMetaDescription *description, QWidget *parent)
    : BasePropertyView(description, parent)
    , m_box(new DoubleSpinBoxWithSuggestions)
{
    applyNumberLimits(*m_box, *description);
    m_box->setPrefix(translatedSuffixOrPrefix(description->prefix));
    m_box->setSuffix(translatedSuffixOrPrefix(description->suffix));
    m_box->setSuggestions(Suggestions::parse(description->extras.value(u"Suggestions"_s)));
    setEditor(m_box);
    connect(m_box, &QDoubleSpinBox::valueChanged, this, [this](double value) { write(value); });
    DoublePropertyView::metaValueChanged(description->getValue());
}

void DoublePropertyView::metaValueChanged(const QVariant &value)
{
    // Setting an equal value would still reformat what is being typed: "1." would become "1.0".
    const double number = value.toDouble();
    if (m_box && m_box->value() != number) {
        const QSignalBlocker blocker(m_box);
        m_box->setValue(number);
    }
    QVariant declared(description()->defaultText.toDouble());
    declared.convert(value.metaType()); // 0.1 is another number as a float
    setDefaultButtonChecked(number == declared.toDouble());
}
