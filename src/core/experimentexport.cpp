#include "core/experimentexport.h"

#include "core/experimentstatistics.h"
#include "core/spinbarrecord.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

ExperimentExport::Format ExperimentExport::formatOfFilter(const QString &filter)
{
    return filter.contains("*.csv"_L1) ? Format::Csv : Format::Workbook;
}

QString ExperimentExport::suffix(Format format)
{
    return format == Format::Csv ? u".csv"_s : u".xlsx"_s;
}

QString ExperimentExport::suggestedName(const QList<SpinbarRecord *> &records)
{
    if (records.isEmpty())
        return {};
    const QString first = records.constFirst()->name();
    return records.size() < 2 ? first : first + '-'_L1 + records.constLast()->name();
}

QList<XLSXHelper::Sheet> ExperimentExport::sheets(const QList<SpinbarRecord *> &records, const WorkStep &step)
{
    QList<XLSXHelper::Sheet> result;
    QList<ExperimentStatistics::SummaryRow> summary;
    for (SpinbarRecord *record : records) {
        // Both tables while the log is in memory, so that it is read once and any number of records will do.
        const bool wasLoaded = record->isStatusLoaded();
        result.append({record->name(), record->experimentTable(false)});
        summary.append(ExperimentStatistics::summaryRow(*record));
        if (!wasLoaded)
            record->releaseStatus();
        if (!goesOn(step))
            return {};
    }
    if (records.size() > 1)
        result.prepend({QCoreApplication::translate("PageDatabase", "Summary"),
                        ExperimentStatistics::summaryTable(summary, false)});
    return result;
}

bool ExperimentExport::writeSheets(const QList<XLSXHelper::Sheet> &sheets, const QString &path, Format format,
                                   const WorkStep &step)
{
    if (sheets.isEmpty())
        return false;
    return format == Format::Csv ? XLSXHelper::dataToCSV(sheets, path, u";"_s, u"\r\n"_s, step)
                                 : XLSXHelper::dataToXLSX(sheets, path, step);
}

bool ExperimentExport::write(const QList<SpinbarRecord *> &records, const QString &path, Format format)
{
    return writeSheets(sheets(records), path, format);
}
