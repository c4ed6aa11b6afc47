#include "core/calibrationrun.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// A lane that never reads less gets the highest threshold there is.
constexpr int HighestReading = 50;
// Below it a reading is noise.
constexpr int LeastReading = 6;

} // namespace

CalibrationRun::CalibrationRun(int lanes)
    : m_lowest(lanes, HighestReading)
{}

void CalibrationRun::collect(const QList<int> &readings)
{
    if (readings.size() != m_lowest.size())
        return;
    for (qsizetype lane = 0; lane < readings.size(); ++lane) {
        if (readings.at(lane) >= LeastReading)
            m_lowest[lane] = std::min(m_lowest.at(lane), readings.at(lane));
    }
}

QString CalibrationRun::thresholds() const
{
    QStringList texts;
    for (const int lowest : m_lowest)
        texts += QString::number(lowest - 1);
    return texts.join(u';');
}
