#pragma once

#include <QJsonArray>
#include <QList>
#include <QTextStream>
#include <QVariant>

using Table = QList<QList<QVariant>>;

/// Cells in full precision with a point, columns aligned by blanks, numbers to the right; an empty row is an
/// empty line.
void printTable(QTextStream &out, const Table &table);

/// One array a row: texts as strings, numbers as numbers, an empty row as an empty array.
QJsonArray tableToJson(const Table &table);

/// Indented JSON and a line end.
void printJson(QTextStream &out, const QJsonValue &value);
