#include "scripts/widgets/scriptcurve.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <utility>

ScriptPoints mergedByTime(const ScriptPoints &points)
{
    const auto isAscending = [](const ScriptPoint &a, const ScriptPoint &b) {
        return a.timeSeconds < b.timeSeconds;
    };
    if (std::ranges::adjacent_find(points, std::not_fn(isAscending)) == points.end())
        return points;
    ScriptPoints sorted = points;
    std::ranges::stable_sort(sorted, {}, &ScriptPoint::timeSeconds);
    ScriptPoints merged;
    merged.reserve(sorted.size());
    for (const ScriptPoint &point : std::as_const(sorted)) {
        if (!merged.isEmpty() && merged.last().timeSeconds == point.timeSeconds)
            merged.last() = point;
        else
            merged.append(point);
    }
    return merged;
}

ScriptCurve ScriptCurve::of(const ScriptPoints &points, const GraphGeometry::Scale &scale)
{
    const ScriptPoints merged = mergedByTime(points);
    QList<QPoint> positions;
    positions.reserve(merged.size());
    for (const ScriptPoint &point : merged)
        positions.append({scale.xAt(point.timeSeconds), scale.yAt(point.speed)});

    ScriptCurve curve;
    if (merged.isEmpty())
        return curve;
    if (merged.first().timeSeconds > 0)
        curve.line.append({0, positions.first().y()});
    for (const qsizetype i : GraphGeometry::columnExtremes(positions)) {
        curve.markers.append({positions[i], merged[i]});
        curve.line.append(positions[i]);
    }
    if (merged.last().timeSeconds < scale.spanSeconds)
        curve.line.append({scale.xAt(scale.spanSeconds), positions.last().y()});
    return curve;
}

qsizetype markerAt(const ScriptPoints &points, const GraphGeometry::Scale &scale, QPoint position, int radius)
{
    const auto hit = [&](const ScriptPoint &point) {
        return std::abs(scale.xAt(point.timeSeconds) - position.x()) <= radius
               && std::abs(scale.yAt(point.speed) - position.y()) <= radius;
    };
    const auto found = std::ranges::find_if(points, hit);
    return found == points.end() ? -1 : found - points.begin();
}

ScriptPoint pointAt(const GraphGeometry::Scale &scale, QPoint position, int durationSeconds)
{
    return {std::clamp(scale.secondsAt(position.x()), 0.0, static_cast<double>(durationSeconds)),
            std::clamp(scale.speedAt(position.y()), 0.0, GraphGeometry::TopSpeed)};
}

ScriptPoint snapped(const ScriptPoint &point, Snap snap)
{
    const double perUnit = snap == Snap::Tenths ? 10 : 1;
    const auto rounded = [perUnit](double value) { return std::round(value * perUnit) / perUnit; };
    return {rounded(point.timeSeconds), rounded(point.speed)};
}
