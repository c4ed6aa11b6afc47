#include "fuzztarget.h"

#include "scripts/scriptexpansion.h"
#include "scripts/speedscript.h"

#include <cmath>

using namespace Qt::StringLiterals;
using FuzzTarget::require;

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
    const QString text = scriptPointsText(points);
    require(scriptPointsText(parseScriptPoints(text)) == text, "written points read back the same");
    const QList<double> table = expandScript(points, script.getDurationSeconds());
    require(table.size() <= MaxScriptTableEntries, "no table is endless");
    require(script.cycleLimit() == -1 || (script.cycleLimit() >= 1 && script.cycleLimit() <= 1000),
            "cycles stay in their limits");
    return 0;
}
