#pragma once

#include "framework/settings/ntsettings.h"
#include "scripts/scriptpoints.h"

#include <QString>

/// A speed-against-time profile of the drum with its repetition, kept in a file of its own. The title is the
/// base name of the file.
class SpeedScript : public NTSettings
{
    Q_OBJECT

    NT_RANGED_PROPERTY(int, DurationSeconds, 10, 10, 10000, 1)
    Q_CLASSINFO("DurationSecondsSuffix", " s")

    NT_PROPERTY(bool, Infinite, true)

    NT_RANGED_PROPERTY(int, Loops, 5, 1, 1000, 1)
    Q_CLASSINFO("LoopsVisibleBound", "Infinite:false")

    NT_PROPERTY(QString, Points, "")
    Q_CLASSINFO("PointsNotVisible", "true")

public:
    /// Reads no file; reload() and then parsePoints() do.
    explicit SpeedScript(const QString &filepath, QObject *parent = nullptr);

    /// The working form of the points. It neither follows the property nor writes it by itself.
    ScriptPoints pointList() const { return m_points; }
    void setPointList(const ScriptPoints &points) { m_points = points; }

    void parsePoints();
    /// Writes the working points into the property and saves, even if nothing changed.
    void storePoints();

    /// The speeds on the script step for one cycle, see expandScript().
    QList<double> table() const;
    /// How often the cycle is played, 1 to 1000, or -1 for endlessly.
    int cycleLimit() const;

private:
    ScriptPoints m_points;
};
