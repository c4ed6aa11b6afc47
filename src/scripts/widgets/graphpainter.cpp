#include "scripts/widgets/graphpainter.h"

#include "device/curlyspinbar.h"
#include "framework/common/widgets/stylehelper.h"

#include <QCoreApplication>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr double FillOpacity = 0.2;
constexpr int TickLength = 2;
constexpr int LabelGap = 4; // between a marker's centre and its label
constexpr int TimeDecimals = 1;
constexpr int LeastContrast = 100; // of 255 steps of gray
constexpr int PlateMargin = 3;     // left and right of a number on its plate
constexpr double PlateRadius = 3;
const QString WidestNumber = u"10000.0000 "_s;

QString generic(const char *text)
{
    return QCoreApplication::translate("Generic", text);
}

QString timeUnit()
{
    return generic("seconds");
}

/// The dark theme writes dark on the bars.
bool isLegible(const QColor &text, const QColor &background)
{
    return std::abs(qGray(text.rgb()) - qGray(background.rgb())) >= LeastContrast;
}

QColor themeColor(const QString &name, const QPen &fallback)
{
    return StyleHelper::ThemeColor(name, fallback.color());
}

} // namespace

GraphPalette GraphPalette::ofTheme()
{
    GraphPalette palette;
    palette.axis.setColor(themeColor(u"--n-grid-time-text"_s, palette.axis));
    palette.grid.setColor(themeColor(u"--n-grid-line"_s, palette.grid));
    palette.text.setColor(themeColor(u"--n-grid-time-text"_s, palette.text));
    palette.barText.setColor(themeColor(u"--n-bg"_s, palette.barText));
    palette.background.setColor(StyleHelper::ThemeColor(u"--n-bg"_s, palette.background.color()));
    return palette;
}

GraphUnit GraphUnit::of(int dimension, bool isMouse)
{
    const double perSpeed =
        CurlySpinbar::convertSpeed(1, CurlySpinbar::Speed_RotationsPerMinute, dimension, isMouse);
    switch (dimension) {
    case CurlySpinbar::RotationsPerMinute:
        return {generic("rpm"), 1, perSpeed};
    case CurlySpinbar::RotationsPerSecond:
        return {generic("rps"), 3, perSpeed};
    case CurlySpinbar::MetersPerSecond:
        return {generic("m/s"), 4, perSpeed};
    case CurlySpinbar::CentimetersPerSecond:
        return {generic("cm/s"), 2, perSpeed};
    case CurlySpinbar::KilometersPerHour:
        return {generic("km/h"), 4, perSpeed};
    default:
        return {{}, 1, perSpeed};
    }
}

GraphPainter::GraphPainter(QPainter &painter, const GraphFrame &frame, const GraphPalette &palette,
                           const GraphUnit &unit)
    : m_painter(painter)
    , m_frame(frame)
    , m_palette(palette)
    , m_unit(unit)
    , m_seconds(generic("s"))
{
    m_painter.translate(frame.plot.topLeft());
}

void GraphPainter::drawGrid()
{
    const int width = m_frame.scale.width;
    const int height = m_frame.scale.height;
    m_painter.fillRect(area(), m_palette.background);
    drawTicks();
    m_painter.setPen(m_palette.axis);
    m_painter.drawLine(0, 0, 0, height);
    m_painter.drawLine(0, height, width, height);
    // Only what stands straight on the pixels is drawn without.
    m_painter.setRenderHint(QPainter::Antialiasing);
}

void GraphPainter::drawTicks()
{
    const GraphGeometry::Scale &scale = m_frame.scale;
    for (const auto &[x, rect, label] : GraphGeometry::timeTicks(scale, m_frame.metrics)) {
        m_painter.setPen(m_palette.grid);
        m_painter.drawLine(x, 0, x, scale.height);
        m_painter.setPen(m_palette.text);
        m_painter.drawLine(x, scale.height, x, scale.height + TickLength);
        m_painter.drawText(rect, Qt::AlignHCenter | Qt::AlignTop, label);
    }
    for (const auto &[y, rect, label] : GraphGeometry::speedTicks(scale, m_frame.metrics, m_unit.perSpeed)) {
        m_painter.setPen(m_palette.grid);
        m_painter.drawLine(0, y, scale.width, y);
        m_painter.setPen(m_palette.text);
        m_painter.drawLine(0, y, -TickLength, y);
        m_painter.drawText(rect, Qt::AlignRight | Qt::AlignVCenter, label);
    }
}

void GraphPainter::drawTrace(const QList<double> &speeds)
{
    const QList<QPoint> line = GraphGeometry::traceLine(speeds, m_frame.scale);
    // A record longer than the plot ends at the edge of the plot, whose lines reach half a pixel beyond it.
    m_painter.setClipRect(area().adjusted(0, -1, 1, 1));
    m_painter.setPen(m_palette.trace);
    for (qsizetype i = 1; i < line.size(); ++i)
        m_painter.drawLine(line[i - 1], line[i]);
    fillBelow(line, m_palette.trace.color());
    m_painter.setClipping(false);
}

void GraphPainter::drawLanes(int count, const QList<ExperimentItem> &bars)
{
    const GraphGeometry::Scale &scale = m_frame.scale;
    constexpr int gap = 3;
    for (int lane = 0; lane < count; ++lane) {
        const int y = GraphGeometry::laneBottom(scale, m_frame.metrics, lane);
        m_painter.setPen(m_palette.grid);
        m_painter.drawLine(0, y, scale.width, y);
        const QRect rect(-m_frame.metrics.labelWidth, y - GraphGeometry::LaneHeight,
                         m_frame.metrics.labelWidth - gap, GraphGeometry::LaneHeight);
        m_painter.setPen(m_palette.text);
        m_painter.drawText(rect, Qt::AlignRight | Qt::AlignVCenter, QString::number(lane + 1));
    }
    const QRect lanes(0, 0, scale.width, m_frame.pictureSize.height());
    const QString sign = generic("#");
    // No number with its sign is narrower, and to measure each is most of what a bar costs.
    const int leastWidth = m_painter.fontMetrics().horizontalAdvance(sign);
    int number = 0;
    for (const ExperimentItem &bar : bars) {
        ++number;
        if (bar.index < 0 || bar.index >= count)
            continue; // a damaged row without a lane of this record
        const QRect rect =
            GraphGeometry::laneBar(scale, m_frame.metrics, bar.start, bar.end, bar.index).intersected(lanes);
        if (rect.isEmpty())
            continue;
        m_painter.fillRect(rect, m_palette.line.brush());
        if (rect.width() >= leastWidth)
            drawBarNumber(rect, sign + QString::number(number));
    }
}

void GraphPainter::drawBarNumber(const QRect &rect, const QString &text)
{
    // A number that is cut off could be taken for another one.
    if (m_painter.fontMetrics().horizontalAdvance(text) > rect.width())
        return;
    const QRect plate =
        m_painter.boundingRect(rect, Qt::AlignCenter, text).adjusted(-PlateMargin, 0, PlateMargin, 0);
    if (!isLegible(m_palette.barText.color(), m_palette.line.color())) {
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(m_palette.text.color());
        m_painter.drawRoundedRect(plate.intersected(rect), PlateRadius, PlateRadius);
    }
    m_painter.setPen(m_palette.barText);
    m_painter.drawText(rect, Qt::AlignCenter, text);
}

void GraphPainter::drawCurve(const ScriptCurve &curve)
{
    m_painter.setPen(m_palette.line);
    for (qsizetype i = 1; i < curve.line.size(); ++i)
        m_painter.drawLine(curve.line[i - 1], curve.line[i]);
    fillBelow(curve.line, m_palette.line.color());
}

void GraphPainter::drawMarkers(const ScriptCurve &curve)
{
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(m_palette.marker);
    for (const ScriptCurve::Marker &marker : curve.markers)
        m_painter.drawEllipse(marker.position, MarkerRadius, MarkerRadius);
    m_painter.setPen(m_palette.text);
    m_painter.setBrush(Qt::NoBrush);
    const QFontMetrics font = m_painter.fontMetrics();
    m_labelRoom = font.horizontalAdvance(WidestNumber + m_unit.text) + font.horizontalAdvance(timeUnit());
    for (const ScriptCurve::Marker &marker : curve.markers)
        drawMarkerLabel(marker);
}

/// Beside the marker and lower, but off the picture's edge and off what is written along the time axis.
void GraphPainter::drawMarkerLabel(const ScriptCurve::Marker &marker)
{
    const int rowHeight = m_frame.metrics.rowHeight;
    const QString speed =
        QString::number(marker.point.speed * m_unit.perSpeed, 'f', m_unit.decimals) + ' '_L1 + m_unit.text;
    const QString time = QString::number(marker.point.timeSeconds, 'f', TimeDecimals) + ' '_L1 + m_seconds;

    int x = marker.position.x() + LabelGap;
    int lowest = m_frame.scale.height - LabelGap;
    if (x + m_labelRoom > m_frame.scale.width) {
        const QFontMetrics font = m_painter.fontMetrics();
        const int width = std::max(font.horizontalAdvance(speed), font.horizontalAdvance(time));
        if (x + width > m_frame.pictureSize.width() - m_frame.plot.left())
            x = marker.position.x() - LabelGap - width;
        if (x + width > m_frame.scale.width - font.horizontalAdvance(timeUnit()))
            lowest -= rowHeight;
    }
    const int timeY = std::min(marker.position.y() + rowHeight * 3 / 2 - 2, lowest);
    const int speedY = std::min(marker.position.y() + rowHeight / 2, lowest - rowHeight + 2);
    m_painter.drawText(x, speedY, speed);
    m_painter.drawText(x, timeY, time);
}

void GraphPainter::drawHint(const QString &text, const QFont &font)
{
    const QFont small = m_painter.font();
    m_painter.setFont(font);
    m_painter.setPen(m_palette.axis);
    m_painter.drawText(area(), Qt::AlignCenter, text);
    m_painter.setFont(small);
}

void GraphPainter::drawUnits()
{
    constexpr int left = 2;
    m_painter.setPen(m_palette.text);
    m_painter.drawText(area().translated(left, left - m_frame.metrics.rowHeight / 2),
                       Qt::AlignLeft | Qt::AlignTop, m_unit.text);
    m_painter.drawText(area().translated(-1, 0), Qt::AlignRight | Qt::AlignBottom, timeUnit());
}

void GraphPainter::drawCursor(double seconds)
{
    if (seconds < 0)
        return;
    const int x = m_frame.scale.xAt(seconds);
    m_painter.setPen(m_palette.cursor);
    m_painter.drawLine(x, 0, x, m_frame.scale.height);
}

/// Column by column, since one polygon under a long restless line is more than the painter can fill, and many
/// small ones cost far more than a picture.
void GraphPainter::fillBelow(const QList<QPoint> &line, const QColor &color)
{
    const QList<double> tops = GraphGeometry::columnTops(line, m_frame.scale);
    const auto shade = [&color](double coverage) {
        QColor translucent = color;
        translucent.setAlphaF(static_cast<float>(FillOpacity * coverage));
        return qPremultiply(translucent.rgba());
    };
    const QRgb full = shade(1);
    std::vector<int> edgeRows;
    std::vector<QRgb> edgeShades;
    for (const double top : tops) {
        edgeRows.push_back(static_cast<int>(top));
        edgeShades.push_back(shade(std::floor(top) + 1 - top));
    }

    QImage layer(m_frame.scale.width, m_frame.scale.height, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < layer.height(); ++y) {
        auto *pixels = reinterpret_cast<QRgb *>(layer.scanLine(y));
        for (std::size_t x = 0; x < edgeRows.size(); ++x)
            pixels[x] = y > edgeRows[x] ? full : y == edgeRows[x] ? edgeShades[x] : 0;
    }
    m_painter.drawImage(0, 0, layer);
}
