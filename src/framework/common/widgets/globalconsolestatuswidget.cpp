#include "framework/common/widgets/globalconsolestatuswidget.h"

#include "framework/common/widgets/stylehelper.h"
#include "framework/common/widgets/uihelper.h"

#include "framework/common/globalconsole.h"

#include <QGridLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

enum Column { NameColumn, ValueColumn };

QString nameStyle()
{
    const QString color = u"#036"_s;
    return "color: "_L1
           + (StyleHelper::Instance()->isDark() ? StyleHelper::ReadableColor(color).name() : color);
}

QLabel *plainLabel(const QString &text)
{
    auto *label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    return label;
}

} // namespace

GlobalConsoleStatusWidget::GlobalConsoleStatusWidget(ViewType type, QWidget *parent)
    : QWidget(parent)
    , m_type(type)
    , m_grid(new QGridLayout(this))
{
    m_grid->setColumnStretch(ValueColumn, 1);
    m_grid->setAlignment(Qt::AlignTop);
    StyleHelper::Instance()->setStyledBackground(this, u"--n-idle-bg"_s, Qt::white);
    const GlobalConsole *console = GlobalConsole::Instance();
    // Queued, since the console may be fed from other threads.
    if (type == Averages) {
        connect(console, &GlobalConsole::newAverageName, this, &GlobalConsoleStatusWidget::refill,
                Qt::QueuedConnection);
        connect(console, &GlobalConsole::updatedAverage, this,
                qOverload<const QString &, double>(&GlobalConsoleStatusWidget::update), Qt::QueuedConnection);
    } else {
        connect(console, &GlobalConsole::newStatusName, this, &GlobalConsoleStatusWidget::refill,
                Qt::QueuedConnection);
        connect(console, &GlobalConsole::updatedStatus, this,
                qOverload<const QString &, const QString &>(&GlobalConsoleStatusWidget::update),
                Qt::QueuedConnection);
        connect(console, &GlobalConsole::statusCleared, this, &GlobalConsoleStatusWidget::refill,
                Qt::QueuedConnection);
    }
    connect(StyleHelper::Instance(), &StyleHelper::Styler::changed, this, &GlobalConsoleStatusWidget::refill);
    refill();
}

void GlobalConsoleStatusWidget::setPrecision(uchar precision)
{
    m_precision = precision;
}

void GlobalConsoleStatusWidget::refill()
{
    UIHelper::ClearLayout(m_grid, false);
    m_values.clear();
    const QStringList names =
        m_type == Averages ? GlobalConsole::getAverageNames() : GlobalConsole::getStatusNames();
    for (int row = 0; row < names.size(); ++row) {
        QLabel *name = plainLabel(names[row]);
        name->setStyleSheet(nameStyle());
        QLabel *value = plainLabel({});
        value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        m_grid->addWidget(name, row, NameColumn);
        m_grid->addWidget(value, row, ValueColumn);
        m_values.insert(names[row], value);
    }
    updateAll();
}

void GlobalConsoleStatusWidget::updateAll()
{
    const QStringList names = m_values.keys();
    for (const QString &name : names) {
        if (m_type == Averages)
            update(name, GlobalConsole::getAverage(name));
        else
            update(name, GlobalConsole::getStatus(name));
    }
}

void GlobalConsoleStatusWidget::update(const QString &name, double value)
{
    update(name, QString::number(value, 'f', m_precision));
}

void GlobalConsoleStatusWidget::update(const QString &name, const QString &value)
{
    if (QLabel *label = m_values.value(name))
        label->setText(value);
}
