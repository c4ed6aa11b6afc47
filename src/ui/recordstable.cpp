#include "ui/recordstable.h"

#include "ui/sortheader.h"

#include "core/spinbarrecord.h"
#include "framework/common/widgets/mediahelper.h"
#include "framework/common/widgets/tablecopy.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QSet>
#include <QSignalBlocker>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int LeastWidth = 200;
constexpr int LeastSectionWidth = 40;
constexpr int MostNameWidth = 220;
// The theme draws a line around the current cell.
constexpr int CurrentCellFrame = 4;
// What the screen says differs from the keys.
constexpr std::array<const char *, RecordsTable::ColumnCount> Keys = {
    QT_TRANSLATE_NOOP("Generic", "Title"), QT_TRANSLATE_NOOP("Generic", "Rodent"),
    QT_TRANSLATE_NOOP("Generic", "Comment"), QT_TRANSLATE_NOOP("Generic", "N")};

const QStringList &headers()
{
    static const QStringList captions = [] {
        QStringList list;
        for (const char *key : Keys)
            list.append(QCoreApplication::translate("Generic", key));
        return list;
    }();
    return captions;
}

QIcon rodentIcon(bool rat)
{
    static const QIcon ratIcon = MediaHelper::icon(u":/resources/images/rat.png"_s);
    static const QIcon mouseIcon = MediaHelper::icon(u":/resources/images/mouse.png"_s);
    return rat ? ratIcon : mouseIcon;
}

} // namespace

RecordsTable::RecordsTable(QWidget *parent)
    : QTableWidget(0, ColumnCount, parent)
{
    // For the sort arrows of the theme.
    setObjectName(u"sortableTable"_s);
    setHorizontalHeader(new SortHeader);
    setMinimumWidth(LeastWidth);
    setSelectionMode(ExtendedSelection);
    // So that Control and a click take a marked row out again.
    setSelectionBehavior(SelectRows);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setTabKeyNavigation(false);
    setWordWrap(false);
    verticalHeader()->hide();
    horizontalHeader()->setMinimumSectionSize(LeastSectionWidth);
    horizontalHeader()->setHighlightSections(false);
    setHorizontalHeaderLabels(headers());
    for (int column = 0; column < ColumnCount; ++column)
        horizontalHeaderItem(column)->setToolTip(headers().at(column));
    // No wider than that for the sake of an arrow.
    horizontalHeaderItem(CountColumn)->setSizeHint({LeastSectionWidth, 0});
    for (const Column column : {NameColumn, CountColumn})
        horizontalHeader()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
    connect(horizontalHeader(), &QHeaderView::sortIndicatorChanged, this, &RecordsTable::fitColumns);
    fitColumns();
    TableCopy::install(this);
}

void RecordsTable::fill(const QList<SpinbarRecord *> &records, const QString &selectedPath)
{
    const QSignalBlocker blocker(this);
    // Not measured before all is in its place.
    m_contentWidths.fill(0, ColumnCount);
    clearContents();
    setSortingEnabled(false);
    setRowCount(int(records.size()));
    int selectedRow = -1;
    for (int row = 0; row < rowCount(); ++row) {
        const SpinbarRecord &record = *records.at(row);
        fillRow(row, record);
        if (record.experimentJsonPath() == selectedPath)
            selectedRow = row;
    }
    if (selectedRow >= 0)
        selectRow(selectedRow);
    setSortingEnabled(true);
    fitColumns();
    if (selectedRow >= 0)
        scrollTo(currentIndex());
}

void RecordsTable::fillRow(int row, const SpinbarRecord &record)
{
    const std::array<QString, ColumnCount> texts = {record.name(), record.title(), record.comment(),
                                                    QString::number(record.rawItems().size())};
    const QString path = record.experimentJsonPath();
    for (int column = 0; column < ColumnCount; ++column) {
        auto *cell = new QTableWidgetItem(texts[std::size_t(column)]);
        const bool isCount = column == CountColumn;
        cell->setData(PathRole, path);
        cell->setToolTip(path);
        cell->setTextAlignment(Qt::AlignVCenter | (isCount ? Qt::AlignRight : Qt::AlignLeft));
        if (isCount)
            cell->setFlags(cell->flags() & ~Qt::ItemIsEditable);
        else
            cell->setData(KeyRole, QString::fromLatin1(Keys[std::size_t(column)]));
        if (column == NameColumn)
            cell->setIcon(rodentIcon(record.isRat()));
        setItem(row, column, cell);
    }
}

int RecordsTable::sizeHintForColumn(int column) const
{
    if (!m_contentWidths.isEmpty())
        return m_contentWidths.value(column);
    const int content = QTableWidget::sizeHintForColumn(column) + CurrentCellFrame;
    return column == NameColumn ? std::min(content, MostNameWidth) : content;
}

void RecordsTable::resizeEvent(QResizeEvent *event)
{
    QTableWidget::resizeEvent(event);
    fitColumns();
}

void RecordsTable::fitColumns()
{
    QHeaderView *header = horizontalHeader();
    m_contentWidths.clear();
    QList<int> widths(ColumnCount);
    int room = viewport()->width();
    for (const Column column : {NameColumn, CountColumn}) {
        widths[column] = sizeHintForColumn(column);
        room -= std::max(widths[column], header->sectionSizeHint(column));
    }
    // The header asks anew at each change of a mode, and measuring takes longer than reading the files.
    m_contentWidths = widths;
    shareRoom(room);
    m_contentWidths.clear();
}

/// Title and comment share it, but not below the width of their captions.
void RecordsTable::shareRoom(int room)
{
    QHeaderView *header = horizontalHeader();
    const int title = header->sectionSizeHint(TitleColumn);
    const int comment = header->sectionSizeHint(CommentColumn);
    const bool even = room >= 2 * std::max(title, comment);
    for (const Column column : {TitleColumn, CommentColumn})
        header->setSectionResizeMode(column, even ? QHeaderView::Stretch : QHeaderView::Fixed);
    if (even)
        return;
    const int spare = std::max(room - title - comment, 0);
    header->resizeSection(TitleColumn, title + spare / 2);
    header->resizeSection(CommentColumn, comment + spare - spare / 2);
}

QStringList RecordsTable::selectedPaths() const
{
    // Not by selectedItems(): a sorted table has to search for the row of each.
    QStringList paths;
    QSet<QString> known;
    const QItemSelection selection = selectionModel()->selection();
    for (const QItemSelectionRange &range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            const QString path = item(row, NameColumn)->data(PathRole).toString();
            if (path.isEmpty() || known.contains(path))
                continue;
            known.insert(path);
            paths.append(path);
        }
    }
    return paths;
}

void RecordsTable::markWholeRows()
{
    QItemSelection rows;
    const QItemSelection selection = selectionModel()->selection();
    for (const QItemSelectionRange &range : selection) {
        if (range.width() < ColumnCount)
            rows.select(model()->index(range.top(), 0), model()->index(range.bottom(), ColumnCount - 1));
    }
    const QSignalBlocker blocker(this);
    selectionModel()->select(rows, QItemSelectionModel::Select);
}

void RecordsTable::setCellText(const QString &path, Column column, const QString &text)
{
    const QSignalBlocker blocker(this);
    // First all of them: each new text may move rows.
    QList<QTableWidgetItem *> cells;
    for (int row = 0; row < rowCount(); ++row) {
        if (item(row, column)->data(PathRole).toString() == path)
            cells.append(item(row, column));
    }
    for (QTableWidgetItem *cell : cells)
        cell->setText(text);
}

int RecordsTable::sortColumn() const
{
    return horizontalHeader()->sortIndicatorSection();
}

Qt::SortOrder RecordsTable::sortOrder() const
{
    return horizontalHeader()->sortIndicatorOrder();
}

void RecordsTable::setSort(int column, Qt::SortOrder order)
{
    const bool exists = column >= 0 && column < ColumnCount;
    horizontalHeader()->setSortIndicator(exists ? column : NameColumn, order);
}
