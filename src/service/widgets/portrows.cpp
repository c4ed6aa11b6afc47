#include "service/widgets/portrows.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

constexpr int RowSpacing = 8;
constexpr int ColumnSpacing = 16;
constexpr int LabelStretch = 100;
constexpr auto OnlyPortMark = u'-';

QString onlyPort(const PortRows::KnownPorts &known)
{
    const bool single = known.size() == 1 && known.firstKey().startsWith(OnlyPortMark);
    return single ? known.firstKey().sliced(1) : QString();
}

// The system tells what a device says of itself: it must not be taken for markup.
QString span(const QString &color, const QString &text)
{
    return uR"(<span style="color:%1">%2</span>)"_s.arg(color, text.toHtmlEscaped());
}

} // namespace

PortRows::PortRows(const QList<PortInfo> &ports, const KnownPorts &known, QWidget *parent)
    : QWidget(parent)
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(RowSpacing);
    grid->setHorizontalSpacing(ColumnSpacing);
    grid->setColumnStretch(1, LabelStretch);
    const QString only = onlyPort(known);
    for (const PortInfo &port : ports) {
        if (!port.description.contains("Bluetooth"_L1) && (only.isEmpty() || port.name == only))
            addRow(grid, port, known);
    }
    if (m_ports.isEmpty()) {
        auto *none = new QLabel(tr("No serial ports found"));
        none->setObjectName(u"subtext"_s);
        grid->addWidget(none, 0, 0, 1, 2);
    }
}

void PortRows::addRow(QGridLayout *grid, const PortInfo &port, const KnownPorts &known)
{
    auto *box = new QCheckBox(port.name);
    box->setToolTip(port.manufacturer);
    box->setCursor(Qt::PointingHandCursor);
    QString text = span(u"#999"_s, port.description);
    if (const auto version = known.constFind(port.name); version != known.cend()) {
        box->setChecked(true);
        text.prepend(span(u"#3C0"_s, u'v' + *version) + "&nbsp; "_L1);
    }
    if (!onlyPort(known).isEmpty()) {
        box->setChecked(true);
        box->setEnabled(false);
    }
    auto *label = new QLabel(text);
    label->setTextFormat(Qt::RichText);
    grid->addWidget(box, int(m_boxes.size()), 0);
    grid->addWidget(label, int(m_boxes.size()), 1);
    m_ports.append(port);
    m_boxes.append(box);
}

QList<PortInfo> PortRows::tickedPorts() const
{
    QList<PortInfo> ticked;
    for (qsizetype i = 0; i < m_boxes.size(); ++i) {
        if (m_boxes.at(i)->isChecked())
            ticked.append(m_ports.at(i));
    }
    return ticked;
}
