#include "framework/common/widgets/simplegraphic.h"

#include <algorithm>
#include <cmath>

template <typename Value>
void SimpleGraphic::change(Value &field, const Value &value)
{
    field = value;
    update();
}

SimpleGraphic::SimpleGraphic(const QString &title, QWidget *parent)
    : QWidget(parent)
    , m_title(title)
{}

void SimpleGraphic::setPoints(const QList<float> &points, bool repaint)
{
    setPoints(0, points, repaint);
}

void SimpleGraphic::setPoints(int series, const QList<float> &points, bool repaint)
{
    m_series.insert(series, {points, PlotGeometry::rangeOf(points), {}});
    m_reducedStep = 0;
    if (repaint)
        update();
}

void SimpleGraphic::clear()
{
    m_series.clear();
    update();
}

void SimpleGraphic::setGraphicColor(const QColor &color, int series)
{
    if (series >= 0)
        change(m_colors[series], color);
}

void SimpleGraphic::setGraphicWidth(int width, int series)
{
    if (series >= 0)
        change(m_widths[series], static_cast<float>(width));
}

void SimpleGraphic::clearGraphicColors()
{
    m_colors.clear();
    update();
}

void SimpleGraphic::setDrawingStyle(DrawingStyle style)
{
    change(m_drawingStyle, style);
}

void SimpleGraphic::setDrawAsBars(bool bars)
{
    setDrawingStyle(bars ? Drawing_Bars : Drawing_Lines);
}

void SimpleGraphic::setTextGridStyle(TextGridStyle style)
{
    change(m_textGridStyle, style);
}

void SimpleGraphic::setCustomTextGrid(const QList<QString> &texts)
{
    QMap<float, QString> map;
    for (qsizetype i = 0; i < texts.size(); ++i)
        map.insert(static_cast<float>(i), texts.at(i));
    setCustomTextGrid(map);
}

void SimpleGraphic::setCustomTextGrid(const QMap<float, QString> &texts)
{
    change(m_customText, texts);
}

void SimpleGraphic::setFixedYRange(float min, float max)
{
    if (!std::isfinite(min) || !std::isfinite(max))
        return;
    m_fixedRange = PlotGeometry::Range{std::min(min, max), std::max(min, max)};
    update();
}

void SimpleGraphic::setHorizontalPointTickScale(float scale)
{
    change(m_horizontalTickScale, scale);
}

void SimpleGraphic::setVerticalPointTickScale(float scale)
{
    change(m_verticalTickScale, scale);
}

void SimpleGraphic::setGridPen(const QPen &pen)
{
    change(m_gridPen, pen);
}

void SimpleGraphic::setBackgroundColor(const QColor &color)
{
    change(m_background, color);
}

void SimpleGraphic::setTextColor(const QColor &color)
{
    change(m_textColor, color);
}

void SimpleGraphic::setTextFontSize(float size)
{
    change(m_textFontSize, size);
}

void SimpleGraphic::setTextVisible(bool x, bool y)
{
    setTextXVisible(x);
    setTextYVisible(y);
}

void SimpleGraphic::setTextXVisible(bool visible)
{
    change(m_textXVisible, visible);
}

void SimpleGraphic::setTextYVisible(bool visible)
{
    change(m_textYVisible, visible);
}

void SimpleGraphic::setTextXAlignment(Qt::Alignment alignment)
{
    change(m_textXAlignment, alignment);
}

void SimpleGraphic::setHeaderTextAlignment(Qt::Alignment alignment)
{
    change(m_headerAlignment, alignment);
}

void SimpleGraphic::setBottomLineVisible(bool visible)
{
    change(m_bottomLineVisible, visible);
}

void SimpleGraphic::setZeroYTextVisible(bool visible)
{
    change(m_zeroYTextVisible, visible);
}

void SimpleGraphic::showTooltips(bool show)
{
    m_tooltips = show;
    setMouseTracking(show);
}
