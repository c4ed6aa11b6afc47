#pragma once

#include <QStringList>
#include <QTableWidget>

class SpinbarRecord;

/// The table of the experiments on disk. A selected cell marks its whole row.
class RecordsTable : public QTableWidget
{
    Q_OBJECT

public:
    enum Column { NameColumn, TitleColumn, CommentColumn, CountColumn, ColumnCount };
    enum Role {
        PathRole = Qt::UserRole, ///< SpinbarRecord::experimentJsonPath().
        KeyRole                  ///< "Title", "Rodent" or "Comment"; absent on the count.
    };

    explicit RecordsTable(QWidget *parent = nullptr);

    /// One row per record, sorted as the header shows, with the row of \a selectedPath selected. Signals
    /// nothing.
    void fill(const QList<SpinbarRecord *> &records, const QString &selectedPath);

    /// Of the selected rows in the order of selection, each once.
    QStringList selectedPaths() const;
    /// Selects all cells of each row that has a selected one. Signals nothing.
    void markWholeRows();
    /// Puts \a text into the named column of an experiment. Signals nothing.
    void setCellText(const QString &path, Column column, const QString &text);

    int sortColumn() const;
    Qt::SortOrder sortOrder() const;
    /// A \a column that does not exist becomes the first.
    void setSort(int column, Qt::SortOrder order);

protected:
    /// A name of any length leaves room for the other columns.
    int sizeHintForColumn(int column) const override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void fillRow(int row, const SpinbarRecord &record);
    void fitColumns();
    void shareRoom(int room);

    /// What sizeHintForColumn() answers while columns are being fitted; else empty.
    QList<int> m_contentWidths;
};
