#include "core/experimentstatistics.h"

#include "core/boundedmath.h"
#include "core/spinbarrecord.h"

#include "framework/common/texthelper.h"

#include <QCoreApplication>

#include <cmath>

using namespace Qt::StringLiterals;
using ExperimentStatistics::Table;
using ExperimentStatistics::ValueColumns;
using ExperimentStatistics::Values;

namespace {

constexpr double MillisecondsPerSecond = 1000.0;
constexpr double RotationSteps = 1000.0;
constexpr int TextColumnsOfExperiment = 2;
constexpr int TextColumnsOfSummary = 4;

using Samples = std::array<QList<double>, ValueColumns>;

QString generic(const char *text)
{
    return QCoreApplication::translate("Generic", text);
}

QString heading(const char *name, const char *unit)
{
    return generic(name) + ", "_L1 + generic(unit);
}

QString rodentMarker(bool rat)
{
    return rat ? u"{R}"_s : u"{M}"_s;
}

double circumference(const ExperimentItem &item)
{
    return item.rat ? SpinbarRecord::RatDrumCircumference : SpinbarRecord::MouseDrumCircumference;
}

double timeSeconds(const ExperimentItem &item)
{
    return item.end > item.start ? double(Bounded::distance(item.end, item.start)) / MillisecondsPerSecond
                                 : 0.0;
}

QString interval(const ExperimentItem &item)
{
    const auto clock = [](qint64 timeMs) {
        const qint64 wholeSeconds = timeMs / 1000;
        return TextHelper::TimeToText(double(wholeSeconds), false);
    };
    return u"%1 %2-%3 [%4]"_s.arg(rodentMarker(item.rat), clock(item.start), clock(item.end),
                                  QString::number(qint64(item.index) + 1));
}

Values valuesOf(SpinbarRecord &record, const ExperimentItem &item, qint64 first)
{
    const double drum = circumference(item);
    const double rotations = item.rotations / RotationSteps;
    const qint64 start = Bounded::add(item.start, first);
    const qint64 end = Bounded::add(item.end, first);
    const qint64 beforeFall = Bounded::add(Bounded::subtract(item.end, SpinbarRecord::StatusPeriodMs), first);
    return {timeSeconds(item), drum * rotations, rotations, record.speedBetween(start, end) * drum,
            record.speedBetween(beforeFall, end) * drum};
}

/// What goes into a cell must be a number.
double finite(double value)
{
    return std::isfinite(value) ? value : 0.0;
}

void appendValues(QList<QVariant> &row, const Values &values)
{
    for (const double value : values)
        row.append(finite(value));
}

void appendSamples(Samples &samples, const Values &values)
{
    for (std::size_t column = 0; column < values.size(); ++column)
        samples[column].append(values[column]);
}

/// An empty row and the rows of M, D and CKO, with the label in the last of the text columns.
void appendStatistics(Table &table, const Samples &samples, int textColumns, bool brief)
{
    Values means{};
    Values dispersions{};
    Values deviations{};
    for (std::size_t column = 0; column < samples.size(); ++column)
        m_d_cko(samples[column], &means[column], &dispersions[column], &deviations[column]);
    table.append(QList<QVariant>());
    const auto append = [&](const QString &label, const QString &description, const Values &values) {
        QList<QVariant> row(textColumns - 1, QString());
        row.append(brief ? label : label + " - "_L1 + description.toLower());
        appendValues(row, values);
        table.append(row);
    };
    append(SpinbarRecord::tr("M"), generic("Average value"), means);
    append(SpinbarRecord::tr("D"), generic("Dispersion"), dispersions);
    append(SpinbarRecord::tr("CKO"), generic("Standard deviation"), deviations);
}

const QList<QVariant> &experimentHeader()
{
    static const QList<QVariant> header{generic("Index"),
                                        generic("Interval"),
                                        heading("Time", "s"),
                                        heading("Distance", "m"),
                                        generic("Rotations"),
                                        heading("Avg.speed", "m/s"),
                                        heading("Fall speed", "m/s")};
    return header;
}

const QList<QVariant> &summaryHeader()
{
    // Two of the units have a blank of their own.
    static const QList<QVariant> header{
        generic("Date"),      generic("Rodent"),           generic("Comment"),
        generic("N"),         heading("Time", " s"),       heading("Distance", " m"),
        generic("Rotations"), heading("Avg.speed", "m/s"), heading("Fall speed", "m/s")};
    return header;
}

} // namespace

void m_d_cko(const QList<double> &values, double *M, double *D, double *CKO)
{
    *M = *D = *CKO = 0.0;
    if (values.isEmpty())
        return;
    const auto n = double(values.size());
    for (const double value : values)
        *M += value;
    *M /= n;
    for (const double value : values)
        *D += (value - *M) * (value - *M);
    *D /= n - 1;
    *CKO = std::sqrt(*D);
}

Table ExperimentStatistics::experimentTable(SpinbarRecord &record, bool brief)
{
    Table table{experimentHeader()};
    Samples samples;
    const QList<ExperimentItem> items = record.normalizedItems();
    const qint64 first = record.firstDeviceTime();
    for (const ExperimentItem &item : items) {
        const Values values = valuesOf(record, item, first);
        QList<QVariant> row;
        row.reserve(TextColumnsOfExperiment + ValueColumns);
        row.append(QString::number(table.size()));
        row.append(interval(item));
        appendValues(row, values);
        table.append(row);
        appendSamples(samples, values);
    }
    appendStatistics(table, samples, TextColumnsOfExperiment, brief);
    return table;
}

ExperimentStatistics::SummaryRow ExperimentStatistics::summaryRow(SpinbarRecord &record)
{
    const QList<ExperimentItem> items = record.normalizedItems();
    const auto n = double(items.size());
    Values means{};
    auto &[time, distance, rotations, averageSpeed, fallSpeed] = means;
    for (const ExperimentItem &item : items) {
        const double drum = circumference(item);
        time += timeSeconds(item) / n;
        distance += item.rotations / RotationSteps * drum / n;
        rotations += item.rotations / n;
        // Times from the first status line where device times are asked for, and the period behind the
        // fall: the summary's speeds are defined so, unlike those of the single rows.
        averageSpeed += record.speedBetween(item.start, item.end) * drum / n;
        fallSpeed +=
            record.speedBetween(item.end, Bounded::add(item.end, SpinbarRecord::StatusPeriodMs)) * drum / n;
    }
    rotations /= RotationSteps;
    return {rodentMarker(record.isRat()) + ' '_L1 + record.name(), record.title(), record.comment(),
            int(record.rawItems().size()), means};
}

Table ExperimentStatistics::summaryTable(const QList<SummaryRow> &rows, bool brief)
{
    Table table{summaryHeader()};
    Samples samples;
    for (const SummaryRow &summary : rows) {
        QList<QVariant> row{summary.name, summary.title, summary.comment, summary.items};
        appendValues(row, summary.means);
        table.append(row);
        appendSamples(samples, summary.means);
    }
    appendStatistics(table, samples, TextColumnsOfSummary, brief);
    return table;
}

Table ExperimentStatistics::summaryTable(const QList<SpinbarRecord *> &records, bool brief,
                                         const WorkStep &step)
{
    QList<SummaryRow> rows;
    rows.reserve(records.size());
    for (SpinbarRecord *record : records) {
        const bool wasLoaded = record->isStatusLoaded();
        rows.append(summaryRow(*record));
        if (!wasLoaded)
            record->releaseStatus();
        if (!goesOn(step))
            return {};
    }
    return summaryTable(rows, brief);
}
