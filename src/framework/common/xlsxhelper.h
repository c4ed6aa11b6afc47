#pragma once

#include "framework/common/workstep.h"

#include <QList>
#include <QString>
#include <QVariant>

#include <utility>

/// Writes grids of cells to files. Numbers that are not finite become 0. The file appears whole or not at
/// all wherever the folder allows it; false, with a line in the log, if it can't be written. A step is behind
/// each sheet, and behind the last one before the file is touched.
namespace XLSXHelper {

using Rows = QList<QList<QVariant>>;
/// A name and its rows; rows may differ in length or be empty.
using Sheet = std::pair<QString, Rows>;

/// UTF-8 with a byte order mark. Each cell is followed by the separator; nothing is quoted.
bool dataToCSV(const QList<Sheet> &sheets, const QString &path, const QString &separator,
               const QString &lineEnd, const WorkStep &step = {});
bool dataToCSV(const Rows &rows, const QString &path, const QString &name, const QString &separator,
               const QString &lineEnd);

/// Numbers are numeric cells, everything else is text, never a formula or a link. Without sheets there is no
/// file and the result is false.
bool dataToXLSX(const QList<Sheet> &sheets, const QString &path, const WorkStep &step = {});
bool dataToXLSX(const Rows &rows, const QString &path, const QString &name);

/// The names under which sheets stand in a workbook: forbidden signs replaced, at most 31 characters, none
/// empty, and none twice in any case of its letters.
QStringList sheetNames(const QStringList &wanted);

} // namespace XLSXHelper
