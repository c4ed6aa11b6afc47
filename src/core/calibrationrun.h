#pragma once

#include <QList>
#include <QString>

/// Finds the thresholds of the lanes from what their sensors read while the empty drum turns.
class CalibrationRun
{
public:
    explicit CalibrationRun(int lanes);

    /// One reading a lane; a list of another length counts for nothing.
    void collect(const QList<int> &readings);

    const QList<int> &lowestReadings() const { return m_lowest; }
    /// One below the lowest reading of each lane, 5 to 49, as the settings keep them.
    QString thresholds() const;

private:
    QList<int> m_lowest;
};
