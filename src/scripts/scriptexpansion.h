#pragma once

#include "scripts/scriptpoints.h"

#include <QList>

/// The time from one entry of a script's table to the next.
inline constexpr int ScriptStepMs = 200;

/// The longest table that is made, above four days. What a damaged file asks for beyond it is cut off.
inline constexpr qsizetype MaxScriptTableEntries = 2'000'000;

/// The speeds on the script step for one cycle: entry k is the speed (k + 1) steps into the cycle. Linear
/// between points, level before the first point and behind the last one up to the duration; points behind the
/// duration are played too. A point not later than the one before it gives a jump. Empty with fewer than two
/// points.
QList<double> expandScript(const ScriptPoints &points, int durationSeconds);
