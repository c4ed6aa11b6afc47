#include "framework/common/widgets/barchart.h"

#include "framework/common/widgets/barchartlayout.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int MinChartHeight = 50;
constexpr int MinSlotWidth = 10;
constexpr double MinWidthRatio = 0.001;

} // namespace

BarChart::BarChart(unsigned char bars, QWidget *parent)
    : QWidget(parent)
{
    setMinimumHeight(MinChartHeight);
    setBarAmount(bars);
}

bool BarChart::goodIndex(int index) const
{
    return index >= 0 && index < m_bars.size();
}

QString BarChart::getBarName(int index) const
{
    return goodIndex(index) ? m_bars.at(index).name : QString();
}

double BarChart::getBarValue(int index) const
{
    return goodIndex(index) ? m_bars.at(index).value : 0;
}

void BarChart::setAutoHeight(bool autoHeight)
{
    m_autoHeight = autoHeight;
}

void BarChart::setBackgroundColor(const QColor &color)
{
    m_backgroundColor = color;
    update();
}

void BarChart::setBar(int index, const QString &name, const QColor &color, Qt::BrushStyle style)
{
    setBarName(index, name);
    setBarColor(index, color);
    setBarStyle(index, style);
}

void BarChart::setBarAmount(unsigned char bars)
{
    m_bars = QList<Bar>(bars);
    setMinimumWidth(MinSlotWidth * bars);
    update();
}

void BarChart::setBarColor(int index, const QColor &color)
{
    if (goodIndex(index))
        m_bars[index].color = color;
}

void BarChart::setBarColorToAll(const QColor &color)
{
    for (Bar &bar : m_bars)
        bar.color = color;
    update();
}

void BarChart::setBarName(int index, const QString &name)
{
    if (goodIndex(index))
        m_bars[index].name = name;
}

void BarChart::setBarStyle(int index, Qt::BrushStyle style)
{
    if (goodIndex(index))
        m_bars[index].style = style;
}

void BarChart::setBarWidthRatio(double ratio)
{
    m_barWidthRatio = std::max(MinWidthRatio, std::min(ratio, 1.0));
    update();
}

void BarChart::setMax(double max)
{
    m_max = max;
}

void BarChart::setMin(double min)
{
    m_min = min;
}

void BarChart::setMinBarHeight(unsigned short height)
{
    m_minBarHeight = height;
    update();
}

void BarChart::setMinMax(double min, double max)
{
    setMin(min);
    setMax(max);
}

void BarChart::setPrecision(unsigned char precision)
{
    m_precision = precision;
}

void BarChart::setShowNames(bool show)
{
    m_showNames = show;
    update();
}

void BarChart::setShowValues(bool show)
{
    m_showValues = show;
    update();
}

void BarChart::setTextColor(const QColor &color)
{
    m_textColor = color;
    update();
}

void BarChart::setValues(const double *values)
{
    for (Bar &bar : m_bars)
        bar.value = *values++;
    update();
}

void BarChart::setValues(const QList<double> &values)
{
    const qsizetype count = std::min(values.size(), m_bars.size());
    for (qsizetype i = 0; i < count; ++i)
        m_bars[i].value = values.at(i);
    update();
}

void BarChart::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::transparent);
    if (m_bars.isEmpty())
        return;
    const int textRows = int(m_showNames) + int(m_showValues);
    const BarChartLayout layout(size(), static_cast<int>(m_bars.size()), m_barWidthRatio,
                                BarChartLayout::rowHeightOf(font()), textRows);
    painter.fillRect(layout.area, m_backgroundColor);
    if (m_centerLine) {
        painter.setPen(Qt::gray);
        painter.drawLine(0, layout.area.height() / 2, width(), layout.area.height() / 2);
    }
    for (int i = 0; i < m_bars.size(); ++i) {
        const Bar &bar = m_bars.at(i);
        const QRect rect = layout.bar(i, layout.barHeight(bar.value, m_min, m_max, m_minBarHeight));
        painter.setPen(bar.color);
        painter.setBrush(textRows > 0 ? QBrush(m_textColor) : QBrush(Qt::NoBrush));
        painter.drawRect(rect);
        painter.fillRect(rect, QBrush(bar.color, bar.style));
        painter.setPen(m_textColor);
        if (m_showValues)
            painter.drawText(layout.valueRow(i), Qt::AlignCenter,
                             QString::number(bar.value, 'f', m_precision));
        if (!m_showNames)
            continue;
        const bool fits = layout.nameFits(painter.fontMetrics().horizontalAdvance(bar.name));
        painter.drawText(layout.nameRow(i), Qt::AlignVCenter | (fits ? Qt::AlignHCenter : Qt::AlignLeft),
                         bar.name);
    }
}
