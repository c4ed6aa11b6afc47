#include "ui/multiexperimentviewer.h"

#include "ui/experimenttable.h"

#include "core/experimentstatistics.h"
#include "core/spinbarrecord.h"
#include "framework/common/widgets/workprogress.h"

#include <QCoreApplication>
#include <QVBoxLayout>

namespace {

QString summaryTitle()
{
    return QCoreApplication::translate("PageDatabase", "Summary");
}

} // namespace

MultiExperimentViewer::MultiExperimentViewer(QWidget *parent)
    : QWidget(parent)
    , m_table(new ExperimentTable(summaryTitle(), this))
{
    setContentsMargins(0, 0, 0, 0);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_table);
}

void MultiExperimentViewer::setRecords(const QList<SpinbarRecord *> &records)
{
    m_table->setRows({});
    m_records = records;
    if (records.size() < 2)
        return;
    WorkProgress progress(summaryTitle(), {}, int(records.size()), this);
    // While the dialog is up, the page may reload and give another list.
    const auto step = [&] { return progress.step() && m_records == records; };
    const auto table = ExperimentStatistics::summaryTable(records, true, step);
    if (m_records == records && !table.isEmpty())
        m_table->setRows(table);
}
