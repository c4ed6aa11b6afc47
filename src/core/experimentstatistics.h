#pragma once

#include "framework/common/workstep.h"

#include <QList>
#include <QString>
#include <QVariant>

#include <array>

class SpinbarRecord;

/// Mean, sample variance and standard deviation. All 0 without values; of a single value the last two are
/// not a number.
void m_d_cko(const QList<double> &values, double *M, double *D, double *CKO);

/// The tables of experiments: rows of QString, double or int cells, the header first. Numbers are finite.
namespace ExperimentStatistics {

using Table = QList<QList<QVariant>>;

/// s, m, turns, m/s, m/s: the numeric columns of both tables in their order.
inline constexpr int ValueColumns = 5;
using Values = std::array<double, ValueColumns>;

/// One experiment's row of the summary.
struct SummaryRow
{
    QString name; ///< With the marker of the rodent in front.
    QString title;
    QString comment;
    int items = 0;
    Values means{};
};

Table experimentTable(SpinbarRecord &record, bool brief);
SummaryRow summaryRow(SpinbarRecord &record);
Table summaryTable(const QList<SummaryRow> &rows, bool brief);
/// Status lines that were not in memory before are not kept there, so that any number of records will do.
/// \a step is called behind each; an empty table if it ends the work.
Table summaryTable(const QList<SpinbarRecord *> &records, bool brief, const WorkStep &step = {});

} // namespace ExperimentStatistics
