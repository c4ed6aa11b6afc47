#include "framework/common/widgets/gaugewidget.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

// In sixteenths of a degree: three quarters of a circle, clockwise from the lower left.
constexpr int StartAngle = 3600;
constexpr int FullSpan = -4320;
constexpr int MinHeightForText = 70;

/// Also of what is no number, or between limits that are crossed.
float bounded(float value, float min, float max)
{
    return std::max(min, std::min(value, max));
}

} // namespace

GaugeWidget::GaugeWidget(QWidget *parent)
    : QWidget(parent)
{}

void GaugeWidget::setRange(float min, float max)
{
    m_minimum = min;
    m_maximum = max;
    setValue(m_rawValue);
}

void GaugeWidget::setValue(float value)
{
    m_rawValue = value;
    m_shownValue = bounded(value, m_minimum, m_maximum);
    update();
}

void GaugeWidget::setBackgroundColor(const QColor &color)
{
    m_backgroundColor = color;
    update();
}

void GaugeWidget::setBarColor(const QColor &color)
{
    m_barColor = color;
    update();
}

void GaugeWidget::setRoundColor(const QColor &color)
{
    m_roundColor = color;
    update();
}

void GaugeWidget::setTextColor(const QColor &color)
{
    m_textColor = color;
    update();
}

QRect GaugeWidget::ringSquare(QSize widget)
{
    const int side = std::max(std::min(widget.width(), widget.height()) - 2, 0);
    return {(widget.width() - side) / 2, (widget.height() - side) / 2, side, side};
}

int GaugeWidget::barSpan(float value, float min, float max)
{
    const double range = double(max) - double(min);
    if (!std::isfinite(range) || range <= 0)
        return 0;
    return static_cast<int>((double(bounded(value, min, max)) - double(min)) * FullSpan / range);
}

QString GaugeWidget::valueText(float value)
{
    // The sum makes the zero of a small negative value a plain one.
    return QString::number(std::trunc(double(value)) + 0.0, 'f', 0) + u'%';
}

void GaugeWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const QRect ring = ringSquare(size());
    painter.setBrush(m_backgroundColor);
    painter.drawPie(ring, StartAngle, FullSpan);
    painter.setBrush(m_barColor);
    painter.drawPie(ring, StartAngle, barSpan(m_shownValue, m_minimum, m_maximum));
    painter.setBrush(m_roundColor);
    const double radius = std::min(width(), height()) / 4.0;
    painter.drawEllipse(QRectF(rect()).center(), radius, radius);
    if (height() < MinHeightForText)
        return;
    painter.setPen(m_textColor);
    painter.drawText(rect(), Qt::AlignCenter, valueText(m_rawValue));
}
