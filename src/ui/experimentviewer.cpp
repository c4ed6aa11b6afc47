#include "ui/experimentviewer.h"

#include "ui/experimenttable.h"

#include "core/spinbarrecord.h"
#include "scripts/widgets/speedscriptviewer.h"

#include <QVBoxLayout>

namespace {

constexpr int RatLanes = 4;
constexpr int MouseLanes = 7;
constexpr int GraphMinimumHeight = 220;

} // namespace

ExperimentViewer::ExperimentViewer(QWidget *parent)
    : QWidget(parent)
    , m_table(new ExperimentTable(tr("Results"), this))
    , m_graph(new SpeedScriptViewer(nullptr, false, this))
{
    setContentsMargins(0, 0, 0, 0);
    m_graph->setMinimumHeight(GraphMinimumHeight);
    m_graph->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_table);
    layout->addWidget(m_graph);
}

void ExperimentViewer::setRecord(SpinbarRecord *record)
{
    m_table->setRows({});
    m_graph->clearRecord();
    if (m_record && m_record != record)
        m_record->releaseStatus();
    m_record = record;
    if (!record)
        return;
    m_table->setRows(record->experimentTable(true));
    m_graph->setTimeSpan(record->durationSeconds());
    m_graph->setSpeedTrace(record->speeds());
    m_graph->setLanes(record->isRat() ? RatLanes : MouseLanes, record->normalizedItems());
}

SpinbarRecord *ExperimentViewer::record() const
{
    return m_record;
}
