#include "gallery/consolepage.h"

#include "framework/common/globalconsole.h"
#include "framework/common/widgets/globalconsoletotalwidget.h"
#include "framework/common/widgets/npushbutton.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int AveragedSamples = 10;

} // namespace

ConsolePage::ConsolePage(QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(new GlobalConsoleTotalWidget, 1);
    auto *write = new NPushButton(tr("Write an entry"));
    layout->addWidget(write, 0, Qt::AlignLeft);
    connect(write, &QPushButton::clicked, this, &ConsolePage::writeSample);
    for (int i = 0; i < 3; ++i)
        writeSample();
}

void ConsolePage::writeSample()
{
    ++m_samples;
    GlobalConsole::writeItem(tr("Entry %1").arg(m_samples), tr("sample"));
    GlobalConsole::countAverage(tr("Samples"), m_samples, AveragedSamples);
    GlobalConsole::setStatus(tr("Last entry"), QString::number(m_samples));
}
