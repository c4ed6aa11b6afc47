#pragma once

#include "framework/common/xlsxhelper.h"

#include <QList>
#include <QString>

class SpinbarRecord;

/// The tables of experiments as files for spreadsheet programs.
namespace ExperimentExport {

enum class Format { Workbook, Csv };

/// Csv if the file filter names "*.csv".
Format formatOfFilter(const QString &filter);

/// Of the first record, with "-" and that of the last if there are several. Without a suffix.
QString suggestedName(const QList<SpinbarRecord *> &records);

/// One record: its table. Several: their summary first. Tables are in the long form with full precision.
QList<XLSXHelper::Sheet> sheets(const QList<SpinbarRecord *> &records);

/// False without records or if the file can't be written.
bool write(const QList<SpinbarRecord *> &records, const QString &path, Format format);

} // namespace ExperimentExport
