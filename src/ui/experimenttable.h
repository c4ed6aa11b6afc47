#pragma once

#include <QList>
#include <QVariant>

class QTableWidget;
class QWidget;

/// Shows the brief form of a table: the first row is the header, numbers have three decimals, markers of
/// rodents become icons.
void fillTable(QTableWidget *table, const QList<QList<QVariant>> &rows);

/// A table for fillTable(), with the colours of the theme in force at any time.
QTableWidget *createExperimentTable(const QString &accessibleName);
