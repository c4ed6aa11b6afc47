#include "scripts/speedscript.h"

#include "scripts/scriptexpansion.h"

SpeedScript::SpeedScript(const QString &filepath, QObject *parent)
    : NTSettings(filepath, false, parent, XML)
{}

void SpeedScript::parsePoints()
{
    m_points = parseScriptPoints(getPoints());
}

void SpeedScript::storePoints()
{
    setPoints(scriptPointsText(m_points));
    save();
}

QList<double> SpeedScript::table() const
{
    return expandScript(m_points, getDurationSeconds());
}

int SpeedScript::cycleLimit() const
{
    constexpr int endless = -1;
    return getInfinite() ? endless : getLoops(); // the property keeps itself in range
}
