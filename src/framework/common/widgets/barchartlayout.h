#pragma once

#include <QRect>
#include <QSize>

class QFont;

/// Where a bar chart puts its bars and its two rows of text, in pixels of the widget.
struct BarChartLayout
{
    /// The rows of text are placed as if both were shown; \a textRows is how many take room from the bars.
    BarChartLayout(QSize widget, int barAmount, double widthRatio, int fontRowHeight, int textRows);

    /// The height of one row of text.
    static int rowHeightOf(const QFont &font);

    /// \a value is brought into \a min to \a max; what is no number, and a range that is none, count as
    /// \a min.
    int barHeight(double value, double min, double max, int minBarHeight) const;
    QRect bar(int index, int height) const;
    QRect valueRow(int index) const;
    QRect nameRow(int index) const;
    /// Whether a name of \a textWidth can be centred.
    bool nameFits(int textWidth) const;

    QRect area;
    int rowHeight = 0;
    int slot = 1;
    int barWidth = 1;
};
