#include "framework/common/widgets/globalconsoletotalwidget.h"

#include "framework/common/widgets/globalconsolestatuswidget.h"
#include "framework/common/widgets/globalconsolewidget.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QSplitter>

GlobalConsoleTotalWidget::GlobalConsoleTotalWidget(QWidget *parent)
    : QWidget(parent)
{
    constexpr int EntriesShare = 3;
    auto *figures = new QSplitter(Qt::Vertical);
    figures->addWidget(new GlobalConsoleStatusWidget(GlobalConsoleStatusWidget::Averages, nullptr));
    figures->addWidget(new GlobalConsoleStatusWidget(GlobalConsoleStatusWidget::Status, nullptr));
    auto *splitter = new QSplitter(Qt::Horizontal);
    splitter->addWidget(new GlobalConsoleWidget);
    splitter->addWidget(figures);
    splitter->setStretchFactor(0, EntriesShare);
    splitter->setStretchFactor(1, 1);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(splitter);
}

void GlobalConsoleTotalWidget::closeEvent(QCloseEvent *event)
{
    emit closing();
    QWidget::closeEvent(event);
}
