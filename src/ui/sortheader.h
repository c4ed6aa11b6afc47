#pragma once

#include <QHeaderView>

/// The header of a table that can be sorted. The theme keeps room for the arrow beside every caption; here
/// only the column that is sorted by has it.
class SortHeader : public QHeaderView
{
    Q_OBJECT

public:
    explicit SortHeader(QWidget *parent = nullptr);

protected:
    QSize sectionSizeFromContents(int section) const override;
    void paintSection(QPainter *painter, const QRect &rect, int section) const override;

private:
    bool hasArrow(int section) const;
};
