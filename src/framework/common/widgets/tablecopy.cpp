#include "framework/common/widgets/tablecopy.h"

#include "framework/common/texthelper.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLocale>
#include <QShortcut>
#include <QTableView>

#include <set>

using namespace Qt::StringLiterals;

namespace {

/// In quotes, as spreadsheet programs write it, if it would break the line or the column.
QString quoted(QString text)
{
    if (!text.contains('\t'_L1) && !text.contains('\n'_L1) && !text.contains('\r'_L1)
        && !text.startsWith('"'_L1))
        return text;
    return '"'_L1 + text.replace('"'_L1, "\"\""_L1) + '"'_L1;
}

QString cellText(const QModelIndex &cell)
{
    const QVariant number = cell.data(TableCopy::NumberRole);
    if (number.typeId() != QMetaType::Double)
        return quoted(cell.data().toString());
    return QString::number(number.toDouble(), 'g', QLocale::FloatingPointShortest)
        .replace('.'_L1, TextHelper::numDecimalSeparator());
}

QList<int> shownColumns(const QHeaderView &header)
{
    QList<int> columns;
    for (int position = 0; position < header.count(); ++position) {
        const int column = header.logicalIndex(position);
        if (!header.isSectionHidden(column))
            columns.append(column);
    }
    return columns;
}

} // namespace

void TableCopy::install(QTableView *table)
{
    // Only with the focus on the table itself: the editor of a cell copies its own selection.
    auto *shortcut = new QShortcut(QKeySequence(QKeySequence::Copy), table);
    shortcut->setContext(Qt::WidgetShortcut);
    QObject::connect(shortcut, &QShortcut::activated, table, [table] {
        if (const QString copied = text(*table); !copied.isEmpty())
            QGuiApplication::clipboard()->setText(copied);
    });
}

QString TableCopy::text(const QTableView &table)
{
    std::set<int> rows;
    const QItemSelection selection = table.selectionModel()->selection();
    for (const QItemSelectionRange &range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.insert(row);
    }
    const QList<int> columns = shownColumns(*table.horizontalHeader());
    QString text;
    for (const int row : rows) {
        QStringList cells;
        for (const int column : columns)
            cells.append(cellText(table.model()->index(row, column, table.rootIndex())));
        text += cells.join('\t'_L1) + '\n'_L1;
    }
    return text;
}
