#include "scripts/widgets/graphgeometry.h"

#include <QFontMetrics>

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double MinSpanSeconds = 10;
constexpr double MsPerSecond = 1000;

constexpr int LabelPadding = 5;
constexpr int LabelGap = 3; // between a number and the vertical axis
constexpr int TickLength = 2;
constexpr double RowPerFontHeight = 1.1;
constexpr int BarInset = 1;

constexpr double MaxPixel = 1e7; // far outside of any screen, and still safe for the painter's arithmetic

constexpr std::array TimeSteps{0.1,  0.5,   1.0,   2.0,   5.0,   10.0,   20.0,   30.0,
                               60.0, 120.0, 180.0, 300.0, 600.0, 1200.0, 1800.0, 3600.0};
constexpr std::array SpeedSteps{0.01, 0.025, 0.05, 0.1, 0.25, 0.5, 1.0, 2.5, 5.0, 10.0, 50.0, 100.0};

/// The first step that fits \a minSpacing between its ticks, else the last.
template <std::size_t N>
double chooseStep(const std::array<double, N> &steps, double range, int pixels, int minSpacing)
{
    const auto fits = [=](double step) { return pixels / std::trunc(range / step) >= minSpacing; };
    const auto step = std::ranges::find_if(steps, fits);
    return step == steps.end() ? steps.back() : *step;
}

int pixel(double value)
{
    return std::isnan(value) ? 0 : static_cast<int>(std::clamp(value, -MaxPixel, MaxPixel));
}

int decimalsOf(double step)
{
    constexpr int significantDigits = 6;
    const QString text = QString::number(step, 'g', significantDigits);
    const qsizetype point = text.indexOf(u'.');
    return point < 0 ? 0 : static_cast<int>(text.size() - point - 1);
}

/// Appends the indexes of one pixel column, \a begin to \a end less 1, in their order and each once.
void appendColumn(QList<qsizetype> &kept, const QList<QPoint> &points, qsizetype begin, qsizetype end)
{
    qsizetype top = begin;
    qsizetype bottom = begin;
    for (qsizetype i = begin + 1; i < end; ++i) {
        if (points[i].y() < points[top].y())
            top = i;
        if (points[i].y() > points[bottom].y())
            bottom = i;
    }
    for (const qsizetype i : {begin, std::min(top, bottom), std::max(top, bottom), end - 1}) {
        if (kept.isEmpty() || kept.last() < i)
            kept.append(i);
    }
}

} // namespace

double GraphGeometry::boundedSpan(double seconds)
{
    return std::isnan(seconds) ? MinSpanSeconds : std::clamp(seconds, MinSpanSeconds, MaxSpanSeconds);
}

GraphGeometry::Metrics GraphGeometry::Metrics::of(const QFontMetrics &font)
{
    return {.labelWidth = font.horizontalAdvance(u"88.88"_s) + LabelPadding,
            .rowHeight = static_cast<int>(font.height() * RowPerFontHeight)};
}

QRect GraphGeometry::plotRectangle(QSize widget, const QMargins &margins, int topOffset, Metrics metrics,
                                   int laneCount)
{
    const int height = widget.height() - metrics.rowHeight - topOffset - std::max(laneCount, 0) * LaneHeight;
    const int width =
        widget.width() - metrics.labelWidth / 2 - margins.left() - margins.right() - metrics.labelWidth;
    return {margins.left() + metrics.labelWidth, topOffset, std::max(width, 0), std::max(height, 0)};
}

int GraphGeometry::Scale::xAt(double seconds) const
{
    return pixel(seconds * pixelsPerSecond());
}

int GraphGeometry::Scale::yAt(double speed) const
{
    return pixel(height - speed * pixelsPerSpeed());
}

QList<GraphGeometry::Tick> GraphGeometry::timeTicks(const Scale &scale, Metrics metrics)
{
    const double step = chooseStep(TimeSteps, scale.spanSeconds, scale.width, metrics.labelWidth);
    const int count = static_cast<int>(scale.spanSeconds / step);
    const double spacing = static_cast<double>(scale.width) / count;
    const int decimals = step < 1 ? 1 : 0;
    QList<Tick> ticks;
    for (int k = 1; k <= count; ++k) {
        const int x = static_cast<int>(k * spacing);
        const QRect rect(static_cast<int>(x + 1 - spacing / 2), scale.height + TickLength,
                         static_cast<int>(spacing), metrics.rowHeight);
        ticks.append({x, rect, QString::number(k * step, 'f', decimals)});
    }
    return ticks;
}

QList<GraphGeometry::Tick> GraphGeometry::speedTicks(const Scale &scale, Metrics metrics,
                                                     double unitsPerSpeed)
{
    const double top = TopSpeed * unitsPerSpeed;
    const double step = chooseStep(SpeedSteps, top, scale.height, metrics.rowHeight);
    const int count = static_cast<int>(top / step);
    const double pixelsPerStep = scale.height / (top / step);
    const int decimals = decimalsOf(step);
    QList<Tick> ticks;
    for (int k = 1; k <= count; ++k) {
        const int y = static_cast<int>(scale.height - k * pixelsPerStep);
        const QRect rect(-metrics.labelWidth, y - metrics.rowHeight / 2, metrics.labelWidth - LabelGap,
                         metrics.rowHeight);
        ticks.append({y, rect, QString::number(k * step, 'f', decimals)});
    }
    return ticks;
}

QList<qsizetype> GraphGeometry::columnExtremes(const QList<QPoint> &points)
{
    QList<qsizetype> kept;
    for (qsizetype begin = 0, end = 0; begin < points.size(); begin = end) {
        while (end < points.size() && points[end].x() == points[begin].x())
            ++end;
        appendColumn(kept, points, begin, end);
    }
    return kept;
}

QList<QPoint> GraphGeometry::traceLine(const QList<double> &speeds, const Scale &scale)
{
    QList<QPoint> samples;
    for (qsizetype i = 0; i < speeds.size(); ++i) {
        const int x = scale.xAt(static_cast<double>(i) * TraceStepSeconds);
        samples.append({x, std::clamp(scale.yAt(speeds[i]), 0, scale.height)});
        if (x > scale.width)
            break;
    }
    QList<QPoint> line;
    const QList<qsizetype> kept = columnExtremes(samples);
    line.reserve(kept.size());
    for (const qsizetype i : kept)
        line.append(samples[i]);
    return line;
}

QList<double> GraphGeometry::columnTops(const QList<QPoint> &line, const Scale &scale)
{
    QList<double> tops(scale.width, scale.height);
    for (qsizetype i = 1; i < line.size(); ++i) {
        const QPoint from = line[i - 1];
        const QPoint to = line[i];
        const double slope = static_cast<double>(to.y() - from.y()) / (to.x() - from.x());
        for (int x = std::max(from.x(), 0); x < std::min(to.x(), scale.width); ++x)
            tops[x] = std::clamp(from.y() + (x + 0.5 - from.x()) * slope, 0.0, 1.0 * scale.height);
    }
    return tops;
}

int GraphGeometry::laneBottom(const Scale &scale, Metrics metrics, int lane)
{
    return (lane + 1) * LaneHeight + scale.height + metrics.rowHeight;
}

QRect GraphGeometry::laneBar(const Scale &scale, Metrics metrics, qint64 startMs, qint64 endMs, int lane)
{
    const int left = scale.xAt(static_cast<double>(startMs) / MsPerSecond);
    const int right = scale.xAt(static_cast<double>(endMs) / MsPerSecond);
    const int top = laneBottom(scale, metrics, lane) - LaneHeight + BarInset;
    return {left, top, right - left, LaneHeight - 2 * BarInset};
}
