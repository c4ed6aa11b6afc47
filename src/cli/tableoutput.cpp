#include "cli/tableoutput.h"

#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

constexpr int ColumnGap = 2;

bool isText(const QVariant &cell)
{
    return cell.typeId() == QMetaType::QString;
}

QList<qsizetype> columnWidths(const Table &table)
{
    QList<qsizetype> widths;
    for (const QList<QVariant> &row : table) {
        if (widths.size() < row.size())
            widths.resize(row.size(), 0);
        for (qsizetype column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths.at(column), row.at(column).toString().size());
    }
    return widths;
}

} // namespace

void printTable(QTextStream &out, const Table &table)
{
    const QList<qsizetype> widths = columnWidths(table);
    for (const QList<QVariant> &row : table) {
        QString line;
        for (qsizetype column = 0; column < row.size(); ++column) {
            const QString text = row.at(column).toString().replace('\n'_L1, ' '_L1);
            line += isText(row.at(column)) ? text.leftJustified(widths.at(column))
                                           : text.rightJustified(widths.at(column));
            line += QString(ColumnGap, ' '_L1);
        }
        while (line.endsWith(' '_L1))
            line.chop(1);
        out << line << '\n';
    }
    out.flush();
}

QJsonArray tableToJson(const Table &table)
{
    QJsonArray rows;
    for (const QList<QVariant> &row : table) {
        QJsonArray cells;
        for (const QVariant &cell : row)
            cells.append(QJsonValue::fromVariant(cell));
        rows.append(cells);
    }
    return rows;
}

void printJson(QTextStream &out, const QJsonValue &value)
{
    const QJsonDocument document =
        value.isArray() ? QJsonDocument(value.toArray()) : QJsonDocument(value.toObject());
    out << document.toJson();
    out.flush();
}
