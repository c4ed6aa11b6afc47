#include "framework/settings/widgets/dualdoublespinbox.h"

#include "framework/settings/widgets/numberlimits.h"

#include "framework/settings/abstractmetadescription.h"
#include "framework/settings/metadescription.h"
#include "framework/settings/valuetext.h"

#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointF>
#include <QSignalBlocker>
#include <QSize>

using namespace Qt::StringLiterals;

namespace {

QPointF numbersOf(const QVariant &value)
{
    if (value.metaType().id() == QMetaType::QSize || value.metaType().id() == QMetaType::QSizeF) {
        const QSizeF size = value.toSizeF();
        return {size.width(), size.height()};
    }
    return value.toPointF();
}

void showNumber(QDoubleSpinBox &box, double number)
{
    if (box.value() == number)
        return;
    const QSignalBlocker blocker(box);
    box.setValue(number);
}

} // namespace

DualDoubleSpinBox::DualDoubleSpinBox(AbstractMetaDescription *description, DualMode mode, QWidget *parent)
    : BasePropertyView(description, parent)
    , m_mode(mode)
    , m_first(new QDoubleSpinBox)
    , m_second(new QDoubleSpinBox)
{
    applyNumberLimits(*m_first, *description);
    applyNumberLimits(*m_second, *description);
    setEditor(createBoxes());
    connect(m_first, &QDoubleSpinBox::valueChanged, this, &DualDoubleSpinBox::onBoxChanged);
    connect(m_second, &QDoubleSpinBox::valueChanged, this, &DualDoubleSpinBox::onBoxChanged);
    DualDoubleSpinBox::metaValueChanged(description->getValue());
}

QWidget *DualDoubleSpinBox::createBoxes()
{
    auto *both = new QWidget;
    auto *layout = new QHBoxLayout(both);
    layout->setContentsMargins({});
    const auto addLabel = [layout](const QString &text) {
        auto *label = new QLabel(text);
        label->setTextFormat(Qt::PlainText);
        layout->addWidget(label);
    };
    const QString prefix = translatedSuffixOrPrefix(description()->prefix);
    const QString suffix = translatedSuffixOrPrefix(description()->suffix);
    const bool isPoint = m_mode == DualMode_Point || m_mode == DualMode_PointF;
    if (!prefix.isEmpty())
        addLabel(prefix);
    layout->addWidget(m_first);
    addLabel(isPoint ? u";"_s : u"—"_s);
    layout->addWidget(m_second);
    if (!suffix.isEmpty())
        addLabel(suffix);
    both->setFocusProxy(m_first);
    nameControl(m_first, u"1"_s);
    nameControl(m_second, u"2"_s);
    return both;
}

QVariant DualDoubleSpinBox::value() const
{
    const double a = m_first->value();
    const double b = m_second->value();
    switch (m_mode) {
    case DualMode_Size:
        return QSize(ValueText::cutToInt(a), ValueText::cutToInt(b));
    case DualMode_Point:
        return QPoint(ValueText::cutToInt(a), ValueText::cutToInt(b));
    case DualMode_PointF:
    case DualMode_Range:
        break;
    }
    return QPointF(a, b);
}

void DualDoubleSpinBox::onBoxChanged()
{
    if (m_mode == DualMode_Range) {
        const bool crossed = m_first->value() > m_second->value();
        // Pushes the second number up where it has to, and its own signal then writes both.
        m_second->setMinimum(m_first->value());
        if (crossed)
            return;
    }
    write(value());
    // What was cut may be what was there before, and then nobody tells: the boxes must still show it.
    QMetaObject::invokeMethod(this, &DualDoubleSpinBox::showCurrentValue, Qt::QueuedConnection);
}

void DualDoubleSpinBox::metaValueChanged(const QVariant &value)
{
    const QPointF numbers = numbersOf(value);
    if (m_first && m_second) {
        showNumber(*m_first, numbers.x());
        if (m_mode == DualMode_Range) {
            const QSignalBlocker blocker(m_second);
            m_second->setMinimum(m_first->value());
        }
        showNumber(*m_second, numbers.y());
    }
    double a = 0;
    double b = 0;
    if (description()->hasDefault && MetaDescription::parsePointOrSize(description()->defaultText, a, b))
        setDefaultButtonChecked(numbers.x() == a && numbers.y() == b);
}
