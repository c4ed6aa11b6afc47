#include "framework/common/widgets/plotgeometry.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double MinTickSpacing = 2;
constexpr double HitRadius = 4;
constexpr double LabelGap = 2;
constexpr double WideBarStep = 4; // from here on there is room for a gap between bars
constexpr double BarGap = 2;
// The painter's work on a thick line grows with the square of its crossings: noise of 1000 points in one
// piece takes 200 ms, in pieces of this many 12 ms.
constexpr qsizetype PieceOfLine = 20;

double bounded(double value, double max)
{
    return std::clamp(value, 0.0, std::max(max, 0.0));
}

/// Steps between ticks \a spacing apart, so that they can be told apart; 0 if there are none.
double stride(double spacing)
{
    if (!std::isfinite(spacing) || spacing <= 0)
        return 0;
    const double steps = std::ceil(MinTickSpacing / spacing);
    return std::isfinite(steps) ? std::max(steps, 1.0) : 0;
}

/// Appends the samples \a begin to \a end less 1, which share a pixel column.
void appendColumn(QList<PlotGeometry::Sample> &kept, const QList<float> &values, qsizetype begin,
                  qsizetype end)
{
    while (begin < end - 1 && std::isnan(values[begin]))
        ++begin;
    qsizetype low = begin;
    qsizetype high = begin;
    qsizetype last = begin;
    for (qsizetype i = begin + 1; i < end; ++i) {
        if (std::isnan(values[i]))
            continue;
        low = values[i] < values[low] ? i : low;
        high = values[i] > values[high] ? i : high;
        last = i;
    }
    for (const qsizetype i : {begin, std::min(low, high), std::max(low, high), last}) {
        if (kept.isEmpty() || kept.last().index < i)
            kept.append({i, values[i]});
    }
}

double xOf(const PlotGeometry::Sample &sample, const PlotGeometry::Scale &scale)
{
    return double(sample.index) * scale.xStep();
}

bool isHit(const PlotGeometry::Sample &sample, const PlotGeometry::Scale &scale, const QPointF &at, bool bars)
{
    if (bars)
        return PlotGeometry::bar(sample, scale).contains(at);
    const QPointF point(xOf(sample, scale), bounded(scale.yAt(sample.value), scale.height));
    return std::hypot(point.x() - at.x(), point.y() - at.y()) <= HitRadius;
}

} // namespace

PlotGeometry::Range PlotGeometry::Range::united(const Range &other) const
{
    return {std::min(min, other.min), std::max(max, other.max)};
}

std::optional<PlotGeometry::Range> PlotGeometry::rangeOf(const QList<float> &values)
{
    std::optional<Range> range;
    for (const float value : values) {
        if (std::isfinite(value))
            range = range ? range->united({value, value}) : Range{value, value};
    }
    return range;
}

double PlotGeometry::Scale::yScale() const
{
    const double extent = range.max - range.min;
    const double scale = height / extent;
    return extent > 0 && std::isfinite(extent) && std::isfinite(scale) ? scale : 0;
}

double PlotGeometry::Scale::yAt(double value) const
{
    const double perValue = yScale();
    return perValue > 0 ? height - (value - range.min) * perValue : height / 2;
}

double PlotGeometry::Scale::baseLevel() const
{
    return range.spansZero() ? yAt(0) : height;
}

QList<PlotGeometry::Sample> PlotGeometry::reduced(const QList<float> &values, double xStep)
{
    QList<Sample> kept;
    if (xStep >= 1) {
        kept.reserve(values.size());
        for (qsizetype i = 0; i < values.size(); ++i)
            kept.append({i, values[i]});
        return kept;
    }
    const auto column = [xStep](qsizetype index) { return std::floor(double(index) * xStep); };
    for (qsizetype begin = 0, end = 0; begin < values.size(); begin = end) {
        const double here = column(begin);
        while (end < values.size() && column(end) == here)
            ++end;
        appendColumn(kept, values, begin, end);
    }
    return kept;
}

QList<QPolygonF> PlotGeometry::lines(const QList<Sample> &samples, const Scale &scale, double maxY)
{
    QList<QPolygonF> lines;
    QPolygonF line;
    const auto finish = [&lines, &line] {
        if (line.size() > 1)
            lines.append(line);
        line.clear();
    };
    for (const Sample &sample : samples) {
        if (std::isnan(sample.value)) {
            finish();
            continue;
        }
        const QPointF point(xOf(sample, scale), bounded(scale.yAt(sample.value), maxY));
        line.append(point);
        if (line.size() > PieceOfLine) {
            finish();
            line.append(point);
        }
    }
    finish();
    return lines;
}

QList<QRectF> PlotGeometry::strokes(const QList<Sample> &samples, const Scale &scale, double maxY,
                                    double penWidth)
{
    QList<QRectF> strokes;
    std::optional<double> before;
    for (const Sample &sample : samples) {
        if (std::isnan(sample.value)) {
            before.reset();
            continue;
        }
        const double x = std::floor(xOf(sample, scale));
        const double y = bounded(scale.yAt(sample.value), maxY);
        if (strokes.isEmpty() || strokes.last().left() < x)
            strokes.append({x, before.value_or(y) - penWidth / 2, 1, penWidth});
        QRectF &stroke = strokes.last();
        stroke.setTop(std::min(stroke.top(), y - penWidth / 2));
        stroke.setBottom(std::max(stroke.bottom(), y + penWidth / 2));
        before = y;
    }
    return strokes;
}

QRectF PlotGeometry::bar(const Sample &sample, const Scale &scale)
{
    if (std::isnan(sample.value))
        return {};
    const double step = scale.xStep();
    const double gap = step > WideBarStep ? BarGap : 0;
    const double base = bounded(scale.baseLevel(), scale.height);
    const double level = bounded(scale.yAt(sample.value), scale.height);
    return {xOf(sample, scale) + gap / 2, std::min(base, level), std::max(step - gap, 1.0),
            std::abs(base - level)};
}

std::optional<PlotGeometry::Sample> PlotGeometry::sampleAt(const QList<Sample> &samples, const Scale &scale,
                                                           const QPointF &at, bool bars)
{
    const double reach = scale.xStep() + HitRadius;
    const auto from = std::ranges::lower_bound(samples, at.x() - reach, {},
                                               [&scale](const Sample &sample) { return xOf(sample, scale); });
    std::optional<Sample> nearest;
    for (auto it = from; it != samples.end() && xOf(*it, scale) <= at.x() + reach; ++it) {
        const auto distance = [&](const Sample &sample) { return std::abs(xOf(sample, scale) - at.x()); };
        if (isHit(*it, scale, at, bars) && (!nearest || distance(*it) < distance(*nearest)))
            nearest = *it;
    }
    return nearest;
}

QList<PlotGeometry::Tick> PlotGeometry::pointTicks(const Scale &scale, double tickScale)
{
    const double spacing = scale.xStep() * tickScale;
    const double steps = stride(spacing);
    QList<Tick> ticks;
    for (double k = 0; steps > 0 && k * spacing <= scale.width; k += steps)
        ticks.append({k * spacing, k * tickScale});
    return ticks;
}

QList<PlotGeometry::Tick> PlotGeometry::valueTicks(const Scale &scale, double tickScale)
{
    const double spacing = scale.yScale() * tickScale;
    const double steps = stride(spacing);
    const double base = scale.baseLevel();
    const double baseValue = scale.range.spansZero() ? 0 : scale.range.min;
    QList<Tick> ticks;
    for (double k = 0; steps > 0 && base - k * spacing >= 0; k += steps)
        ticks.append({base - k * spacing, baseValue + k * tickScale});
    return ticks;
}

QList<qsizetype> PlotGeometry::fittingLabels(const QList<Label> &labels, double width)
{
    QList<qsizetype> fitting;
    double free = 0;
    for (qsizetype i = 0; i < labels.size(); ++i) {
        const auto &[left, labelWidth] = labels[i];
        if (left < free || left + labelWidth > width)
            continue;
        fitting.append(i);
        free = left + labelWidth + LabelGap;
    }
    return fitting;
}
