#pragma once

#include <QString>
#include <QStringList>

/// Texts in the form that spreadsheet programs accept.
namespace WorkbookText {

/// At most 32767 UTF-16 units, without what XML can't hold, and safe from being read as an escape.
QString cell(const QString &text);

/// Names of sheets: forbidden signs replaced, at most 31 UTF-16 units, none empty, and none twice in any
/// case of its letters.
QStringList sheetNames(const QStringList &wanted);

} // namespace WorkbookText
