#pragma once

#include <QList>
#include <QTableWidget>
#include <QVariant>

/// Shows the brief form of a table: the first row is the header, numbers have three decimals, markers of
/// rodents become icons.
void fillTable(QTableWidget *table, const QList<QList<QVariant>> &rows);

/// A table for the results of experiments. Its columns share the width evenly; where that would cut numbers,
/// each takes what it needs and the table can be scrolled.
class ExperimentTable : public QTableWidget
{
    Q_OBJECT

public:
    explicit ExperimentTable(const QString &accessibleName, QWidget *parent = nullptr);

    /// As fillTable().
    void setRows(const QList<QList<QVariant>> &rows);

protected:
    /// A name of any length leaves room for the other columns.
    int sizeHintForColumn(int column) const override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void measureColumns();
    void fitColumns();
    void fitHeader(const QList<int> &widths);
    void dimAgain();

    /// The width of each column's content, with long texts cut.
    QList<int> m_needed;
};
