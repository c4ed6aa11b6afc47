#pragma once

#include <QList>
#include <QString>
#include <QStringView>

/// One corner of a speed script's polyline.
struct ScriptPoint
{
    double timeSeconds = 0; ///< from the start of a cycle
    double speed = 0;       ///< shown as drum revolutions per minute, commanded as motor radians per second

    friend bool operator==(const ScriptPoint &, const ScriptPoint &) = default;
};

using ScriptPoints = QList<ScriptPoint>;

/// Reads one point a line, "time:speed", in the order of the text, which need not be that of time. A line
/// that can't be read, or whose numbers are not finite, is left out.
ScriptPoints parseScriptPoints(const QString &text);

/// Time with three decimals, speed with two; lines end in "\r\n" but for the last.
QString scriptPointsText(const ScriptPoints &points);
