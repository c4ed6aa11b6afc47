#include "ui/experimenttable.h"

#include "framework/common/texthelper.h"
#include "framework/common/widgets/mediahelper.h"
#include "framework/common/widgets/stylehelper.h"
#include "framework/common/widgets/tablecopy.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QTableWidget>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int Decimals = 3;
constexpr int DimmedRole = Qt::UserRole;
constexpr QRgb DimmedFallback = 0xFFCCCCCC;

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

void dimAgain(const QTableWidget &table)
{
    for (int row = 0; row < table.rowCount(); ++row) {
        for (int column = 0; column < table.columnCount(); ++column) {
            QTableWidgetItem *item = table.item(row, column);
            if (item && item->data(DimmedRole).toBool())
                dim(*item);
        }
    }
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

QTableWidget *createExperimentTable(const QString &accessibleName)
{
    auto *table = new QTableWidget;
    table->setAccessibleName(accessibleName);
    table->setTabKeyNavigation(false);
    TableCopy::install(table);
    QObject::connect(StyleHelper::Instance(), &StyleHelper::Styler::changed, table,
                     [table] { dimAgain(*table); });
    return table;
}
