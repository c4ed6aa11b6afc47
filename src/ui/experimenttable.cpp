#include "ui/experimenttable.h"

#include "framework/common/texthelper.h"
#include "framework/common/widgets/mediahelper.h"
#include "framework/common/widgets/stylehelper.h"
#include "framework/common/widgets/tablecopy.h"

#include <QCoreApplication>
#include <QHeaderView>

#include <algorithm>
#include <cmath>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

constexpr int Decimals = 3;
constexpr int DimmedRole = Qt::UserRole;
constexpr QRgb DimmedFallback = 0xFFCCCCCC;
// Of a column whose texts may be of any length.
constexpr int GreatestWidth = 160;
constexpr int GreatestFirstWidth = 220;
// Around the text of a heading: the style sheet's padding, the line and what the style adds.
constexpr int HeaderPadding = 16;

/// What "Index" is called in the languages that have a short sign for it.
bool isNumberSign(const QString &text)
{
    return text == "#"_L1 || text == u"№";
}

/// Of the label of a row of statistics; empty for any other text.
QString statisticsDescription(const QString &label)
{
    const auto generic = [](const char *text) { return QCoreApplication::translate("Generic", text); };
    if (label == "M"_L1)
        return generic("Average value");
    if (label == "D"_L1)
        return generic("Dispersion");
    if (label == "CKO"_L1 || label == u"σ")
        return generic("Standard deviation");
    return {};
}

void takeMarker(QTableWidgetItem &item)
{
    const QString text = item.text();
    const bool mouse = text.startsWith("{M}"_L1);
    if (!mouse && !text.startsWith("{R}"_L1))
        return;
    item.setIcon(
        MediaHelper::icon(mouse ? u":/resources/images/mouse.png"_s : u":/resources/images/rat.png"_s));
    item.setText(text.sliced(3).trimmed());
}

void dim(QTableWidgetItem &item)
{
    item.setData(DimmedRole, true);
    item.setForeground(StyleHelper::ThemeColor(u"--n-sub-text"_s, QColor::fromRgb(DimmedFallback)));
}

QTableWidgetItem *createItem(const QVariant &cell, bool ofNumberColumn)
{
    auto *item = new QTableWidgetItem;
    const QString text = cell.toString();
    bool right = true;
    item->setText(text);
    if (cell.typeId() == QMetaType::Double) {
        const double value = std::isfinite(cell.toDouble()) ? cell.toDouble() : 0.0;
        item->setText(TextHelper::numToStr(value, Decimals));
        item->setData(TableCopy::NumberRole, value);
    } else if (cell.typeId() != QMetaType::Int) {
        const QString description = statisticsDescription(text);
        item->setToolTip(description);
        if (!description.isEmpty())
            dim(*item);
        right = !description.isEmpty() || isNumberSign(text) || ofNumberColumn;
        takeMarker(*item);
    }
    item->setTextAlignment((right ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    item->setFlags(item->flags() & ~Qt::ItemIsEditable);
    return item;
}

int headerWidth(const QHeaderView &header, const QString &text)
{
    return header.fontMetrics().horizontalAdvance(text) + HeaderPadding;
}

/// The least in which it stands in two lines.
int twoLineWidth(const QHeaderView &header, const QString &text)
{
    int least = headerWidth(header, text);
    for (qsizetype blank = text.indexOf(' '_L1); blank >= 0; blank = text.indexOf(' '_L1, blank + 1)) {
        const int first = headerWidth(header, text.first(blank));
        const int second = headerWidth(header, text.sliced(blank + 1));
        least = std::min(least, std::max(first, second));
    }
    return least;
}

} // namespace

void fillTable(QTableWidget *table, const QList<QList<QVariant>> &rows)
{
    table->clear();
    QStringList headers;
    for (const QVariant &cell : rows.value(0))
        headers.append(cell.toString());
    QHeaderView *header = table->horizontalHeader();
    // The widths follow once for all the cells and not for each.
    header->setSectionResizeMode(QHeaderView::Fixed);
    table->setColumnCount(int(headers.size()));
    table->setRowCount(std::max(int(rows.size()) - 1, 0));
    table->setHorizontalHeaderLabels(headers);
    table->verticalHeader()->hide();
    const bool numbered = isNumberSign(headers.value(0));
    for (int row = 0; row < table->rowCount(); ++row) {
        const QList<QVariant> &cells = rows[row + 1];
        for (int column = 0; column < int(cells.size()); ++column)
            table->setItem(row, column, createItem(cells[column], numbered && column == 0));
    }
    header->setSectionResizeMode(QHeaderView::Stretch);
    if (!headers.isEmpty())
        header->setSectionResizeMode(0, QHeaderView::ResizeToContents);
}

ExperimentTable::ExperimentTable(const QString &accessibleName, QWidget *parent)
    : QTableWidget(parent)
{
    setAccessibleName(accessibleName);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setWordWrap(false);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignCenter | Qt::Alignment(Qt::TextWordWrap));
    TableCopy::install(this);
    connect(StyleHelper::Instance(), &StyleHelper::Styler::changed, this, &ExperimentTable::dimAgain);
}

void ExperimentTable::setRows(const QList<QList<QVariant>> &rows)
{
    fillTable(this, rows);
    measureColumns();
    fitColumns();
}

void ExperimentTable::resizeEvent(QResizeEvent *event)
{
    QTableWidget::resizeEvent(event);
    fitColumns();
}

int ExperimentTable::sizeHintForColumn(int column) const
{
    return std::min(QTableWidget::sizeHintForColumn(column),
                    column == 0 ? GreatestFirstWidth : GreatestWidth);
}

void ExperimentTable::measureColumns()
{
    m_needed.clear();
    for (int column = 0; column < columnCount(); ++column) {
        const int content = sizeHintForColumn(column) + 1; // the line between columns
        // The first one's width is up to the header.
        const int heading = column == 0
                                ? horizontalHeader()->sectionSizeHint(0)
                                : twoLineWidth(*horizontalHeader(), horizontalHeaderItem(column)->text());
        m_needed += std::max(content, heading);
    }
}

void ExperimentTable::fitColumns()
{
    const int sharing = int(m_needed.size()) - 1;
    if (sharing < 1)
        return;
    const int room = viewport()->width() - m_needed.constFirst();
    const int widest = *std::max_element(m_needed.cbegin() + 1, m_needed.cend());
    const bool even = room >= sharing * widest;
    const int needed = std::accumulate(m_needed.cbegin() + 1, m_needed.cend(), 0);
    const int excess = std::max(room - needed, 0) / sharing;
    QList<int> widths = m_needed;
    for (int column = 1; column <= sharing; ++column) {
        widths[column] = even ? room / sharing : m_needed[column] + excess;
        horizontalHeader()->setSectionResizeMode(column, even ? QHeaderView::Stretch : QHeaderView::Fixed);
        if (!even)
            horizontalHeader()->resizeSection(column, widths[column]);
    }
    fitHeader(widths);
}

/// Headings that are wider than their column stand in two lines.
void ExperimentTable::fitHeader(const QList<int> &widths)
{
    QHeaderView *header = horizontalHeader();
    int lines = 1;
    for (int column = 0; column < columnCount(); ++column) {
        if (headerWidth(*header, horizontalHeaderItem(column)->text()) > widths[column])
            lines = 2;
    }
    header->setFixedHeight(lines * header->fontMetrics().lineSpacing() + HeaderPadding);
}

void ExperimentTable::dimAgain()
{
    for (int row = 0; row < rowCount(); ++row) {
        for (int column = 0; column < columnCount(); ++column) {
            QTableWidgetItem *cell = item(row, column);
            if (cell && cell->data(DimmedRole).toBool())
                dim(*cell);
        }
    }
}
