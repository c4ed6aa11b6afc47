#include "fuzztarget.h"

#include "scripts/scriptexpansion.h"
#include "scripts/speedscript.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;
using FuzzTarget::require;

namespace {

/// How long the script's ramps last, going back in time left out.
double hoursOf(const ScriptPoints &points)
{
    constexpr double SecondsPerHour = 3600;
    double last = 0;
    double seconds = 0;
    for (const ScriptPoint &point : points) {
        seconds += std::max(0.0, point.timeSeconds - last);
        last = point.timeSeconds;
    }
    return seconds / SecondsPerHour;
}

} // namespace

// A script's file, its points and the table that the player takes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray content = FuzzTarget::bytes(data, size);
    SpeedScript script(FuzzTarget::scratchFile(u"script.xml"_s, content));
    script.reload();
    script.parsePoints();
    const ScriptPoints points = parseScriptPoints(QString::fromUtf8(content)) + script.pointList();
    for (const ScriptPoint &point : points)
        require(std::isfinite(point.timeSeconds) && std::isfinite(point.speed), "points are finite");
    // Rounded once, since what is rounded to nothing from below is written with its sign only the first time.
    const ScriptPoints rounded = parseScriptPoints(scriptPointsText(points));
    require(rounded.size() == points.size() && parseScriptPoints(scriptPointsText(rounded)) == rounded,
            "written points read back the same");
    // Most damaged times ask for the longest table, and making it each time would leave no time for others.
    if (hoursOf(points) < 1 || size % 64 == 0) {
        const QList<double> table = expandScript(points, script.getDurationSeconds());
        require(table.size() <= MaxScriptTableEntries, "no table is endless");
    }
    require(script.cycleLimit() == -1 || (script.cycleLimit() >= 1 && script.cycleLimit() <= 1000),
            "cycles stay in their limits");
    return 0;
}
