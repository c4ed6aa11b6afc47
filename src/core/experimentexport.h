#pragma once

#include "framework/common/workstep.h"
#include "framework/common/xlsxhelper.h"

#include <QList>
#include <QString>

class SpinbarRecord;

/// The tables of experiments as files for spreadsheet programs.
namespace ExperimentExport {

enum class Format { Workbook, Csv };

/// Csv if the file filter names "*.csv".
Format formatOfFilter(const QString &filter);
/// Of the files of a format, with the dot.
QString suffix(Format format);

/// Of the first record, with "-" and that of the last if there are several. Without a suffix.
QString suggestedName(const QList<SpinbarRecord *> &records);

/// One record: its table. Several: their summary first. Tables are in the long form with full precision.
/// \a step is called behind each record; none are the result if it ends the work.
QList<XLSXHelper::Sheet> sheets(const QList<SpinbarRecord *> &records, const WorkStep &step = {});

/// False without sheets, if the file can't be written, or if \a step, called behind each sheet, ends the
/// work. May run on any thread.
bool writeSheets(const QList<XLSXHelper::Sheet> &sheets, const QString &path, Format format,
                 const WorkStep &step = {});
bool write(const QList<SpinbarRecord *> &records, const QString &path, Format format);

} // namespace ExperimentExport
