#include "scripts/scriptexpansion.h"

#include <QLoggingCategory>

#include <algorithm>
#include <cmath>

Q_LOGGING_CATEGORY(lcExpansion, "spinbar.scripts")

namespace {

constexpr double MsPerSecond = 1000;

/// The growing table and the time that it has reached.
class Sampler
{
public:
    explicit Sampler(qsizetype expectedEntries)
    {
        m_table.reserve(std::min(expectedEntries, MaxScriptTableEntries));
    }

    double timeMs() const { return static_cast<double>(m_table.size()) * ScriptStepMs; }
    bool isFull() const { return m_table.size() > MaxScriptTableEntries; }

    // A speed that is no number can only come from points beyond all measure; the drum then stands.
    void sample(double speed) { m_table.append(std::isfinite(speed) ? speed : 0.0); }

    /// The moment 0 is never played, so its entry goes.
    QList<double> takeTable()
    {
        if (isFull())
            qCWarning(lcExpansion) << "the script is too long and is cut off at" << timeMs() / MsPerSecond
                                   << "s";
        m_table.removeFirst();
        return std::move(m_table);
    }

private:
    QList<double> m_table;
};

void sampleRamp(Sampler &sampler, const ScriptPoint &from, const ScriptPoint &to)
{
    const double steps = (to.timeSeconds - from.timeSeconds) * MsPerSecond / ScriptStepMs;
    const double increment = (to.speed - from.speed) / steps;
    double speed = from.speed;
    // Counting up to a fractional number of steps rounds it upward.
    for (qint64 k = 0; steps > static_cast<double>(k) && !sampler.isFull(); ++k) {
        sampler.sample(speed);
        speed += increment;
    }
}

} // namespace

QList<double> expandScript(const ScriptPoints &points, int durationSeconds)
{
    if (points.size() < 2)
        return {};

    const double durationMs = durationSeconds * MsPerSecond;
    Sampler sampler(static_cast<qsizetype>(std::max(durationMs, 0.0) / ScriptStepMs) + points.size() + 1);

    const ScriptPoint &first = points.first();
    while (first.timeSeconds > sampler.timeMs() / MsPerSecond && !sampler.isFull())
        sampler.sample(first.speed);

    for (qsizetype i = 1; i < points.size() && !sampler.isFull(); ++i)
        sampleRamp(sampler, points[i - 1], points[i]);

    do {
        sampler.sample(points.last().speed);
    } while (sampler.timeMs() < durationMs && !sampler.isFull());
    return sampler.takeTable();
}
