#pragma once

#include <QString>

class QTableView;

/// The rows of a table as tab-separated text, which spreadsheet programs take as cells.
namespace TableCopy {

/// Holds the number behind a shortened text of a cell: a double here is copied in its place, in full and
/// with the system's decimal separator.
inline constexpr int NumberRole = Qt::UserRole + 100;

/// Control+C puts text() on the clipboard while \a table has the focus; nothing if no cell is selected.
void install(QTableView *table);

/// The rows with a selected cell, whole and in the order in which they are seen, without hidden columns.
QString text(const QTableView &table);

} // namespace TableCopy
