#include "framework/common/widgets/barchartlayout.h"

#include <QFontInfo>

#include <algorithm>
#include <cmath>

namespace {

constexpr int NameInset = 5; // by which a name's row is narrower than its slot
constexpr int NameMargin = 4;

/// 0 to 1; the halves keep the widest ranges from running over.
double shareOf(double value, double min, double max)
{
    const double range = max / 2 - min / 2;
    const double above = std::max(min, std::min(value, max)) / 2 - min / 2;
    return std::isfinite(range) && range > 0 && above > 0 ? above / range : 0;
}

} // namespace

BarChartLayout::BarChartLayout(QSize widget, int barAmount, double widthRatio, int fontRowHeight,
                               int textRows)
    : area(0, 0, widget.width(), std::max(widget.height() - textRows * fontRowHeight, 0))
    , rowHeight(fontRowHeight)
    , slot(std::max(widget.width() / std::max(barAmount, 1), 1))
    , barWidth(std::max(static_cast<int>(slot * widthRatio), 1))
{}

int BarChartLayout::rowHeightOf(const QFont &font)
{
    // The font may be given in pixels, and then has no point size of its own.
    return QFontInfo(font).pointSize() * 2 + 2;
}

int BarChartLayout::barHeight(double value, double min, double max, int minBarHeight) const
{
    return std::max(static_cast<int>(shareOf(value, min, max) * area.height()), minBarHeight);
}

QRect BarChartLayout::bar(int index, int height) const
{
    return {(slot - barWidth) / 2 + index * slot, area.height() - height, barWidth, height};
}

QRect BarChartLayout::valueRow(int index) const
{
    return {index * slot, area.height() + 1, slot, rowHeight};
}

QRect BarChartLayout::nameRow(int index) const
{
    return {index * slot, area.height() + 1 + rowHeight, slot - NameInset, rowHeight};
}

bool BarChartLayout::nameFits(int textWidth) const
{
    return textWidth + NameMargin <= slot;
}
