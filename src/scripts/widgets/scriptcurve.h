#pragma once

#include "scripts/scriptpoints.h"
#include "scripts/widgets/graphgeometry.h"

#include <QList>
#include <QPoint>

/// The points in ascending order of time; of points of one time the last in the list stays.
ScriptPoints mergedByTime(const ScriptPoints &points);

/// A script as its graph shows it, in pixels of the plot.
struct ScriptCurve
{
    struct Marker
    {
        QPoint position;
        ScriptPoint point;
    };

    QList<Marker> markers; ///< of several in a pixel column only what columnExtremes() keeps
    QList<QPoint> line;    ///< through the markers, level to the plot's left and right edge

    static ScriptCurve of(const ScriptPoints &points, const GraphGeometry::Scale &scale);
};

/// The first of \a points within \a radius of \a position on both axes, else -1.
qsizetype markerAt(const ScriptPoints &points, const GraphGeometry::Scale &scale, QPoint position,
                   int radius);

/// What a place in the plot stands for, within the script's duration and the plot's speeds.
ScriptPoint pointAt(const GraphGeometry::Scale &scale, QPoint position, int durationSeconds);

enum class Snap { WholeNumbers, Tenths };
/// Both numbers rounded, halves away from zero.
ScriptPoint snapped(const ScriptPoint &point, Snap snap);
