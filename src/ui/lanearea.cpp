#include "ui/lanearea.h"

#include "ui/rodentstatuswidget.h"
#include "ui/rungraph.h"

#include "core/spinbarrecord.h"
#include "core/spinbarsettings.h"
#include "device/curlyspinbar.h"
#include "scripts/widgets/speedscriptviewer.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {

constexpr int GraphHeight = 220;
constexpr int Filling = 100;
constexpr QMargins LaneMargins{0, 16, 0, 16};

} // namespace

LaneArea::LaneArea(CurlySpinbar *device, SpinbarSettings *settings, QWidget *parent)
    : LateWidget(parent)
    , m_device(device)
    , m_settings(settings)
{
    setContentsMargins(0, 0, 0, 0);
}

void LaneArea::layOut()
{
    auto *column = new QVBoxLayout(this);
    auto *row = new QHBoxLayout;
    row->setContentsMargins(LaneMargins);
    m_ratWidgets = createLanes(m_device->ratDetectors());
    m_mouseWidgets = createLanes(m_device->mouseDetectors());
    for (RodentStatusWidget *lane : m_ratWidgets + m_mouseWidgets)
        row->addWidget(lane);
    column->addLayout(row, Filling);
    m_graph = new SpeedScriptViewer(nullptr, false, this);
    m_graph->setFixedHeight(GraphHeight);
    column->addWidget(m_graph);
    updateMode();
    updateInfraRed();
}

QList<RodentStatusWidget *> LaneArea::createLanes(const QList<SpinbarDetection *> &lanes)
{
    QList<RodentStatusWidget *> widgets;
    for (SpinbarDetection *lane : lanes)
        widgets += new RodentStatusWidget(lane, this);
    return widgets;
}

void LaneArea::updateMode()
{
    const bool rats = m_device->rodentMode() == CurlySpinbarDevice::Rats;
    for (RodentStatusWidget *lane : m_ratWidgets + m_mouseWidgets)
        lane->hide();
    for (RodentStatusWidget *lane : rats ? m_ratWidgets : m_mouseWidgets)
        lane->show();
}

void LaneArea::updateInfraRed()
{
    for (RodentStatusWidget *lane : m_ratWidgets + m_mouseWidgets)
        lane->setInfraRedVisible(m_settings->getShowIR());
}

void LaneArea::clearRecord()
{
    if (m_graph)
        m_graph->clearRecord();
}

void LaneArea::showRecord(SpinbarRecord &record)
{
    if (!m_graph)
        return;
    const RunGraph run = RunGraph::of(record, m_device->detectors());
    m_graph->setTimeSpan(run.spanSeconds);
    m_graph->setLanes(run.laneCount, run.bars);
    m_graph->setSpeedTrace(record.speeds());
}
