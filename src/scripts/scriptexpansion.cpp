#include "scripts/scriptexpansion.h"

#include <QLoggingCategory>

#include <algorithm>
#include <cmath>
#include <span>

Q_LOGGING_CATEGORY(lcExpansion, "spinbar.scripts")

namespace {

constexpr double MsPerSecond = 1000;

/// The growing table. Runs of entries are added at once: a script of some hours has tens of thousands.
class Table
{
public:
    explicit Table(qsizetype expectedEntries) { m_entries.reserve(std::min(expectedEntries, MaxEntries)); }

    qint64 timeMs() const { return m_entries.size() * ScriptStepMs; }
    qsizetype room() const { return MaxEntries - m_entries.size(); }

    /// Adds as many entries as there is room for, \a count at most; each is \a increment above the last.
    void append(double count, double speed, double increment)
    {
        if (count > static_cast<double>(room()))
            qCWarning(lcExpansion) << "a script is too long and is cut off at" << MaxScriptTableEntries
                                   << "entries";
        const auto added = static_cast<qsizetype>(std::min(count, static_cast<double>(room())));
        m_entries.resize(m_entries.size() + added);
        for (double &entry : std::span(m_entries).last(static_cast<std::size_t>(added))) {
            // A speed that is no number can only come from points beyond all measure; the drum then stands.
            entry = std::isfinite(speed) ? speed : 0.0;
            speed += increment;
        }
    }

    /// The moment 0 is never played, so its entry goes.
    QList<double> takeEntries()
    {
        m_entries.removeFirst();
        return std::move(m_entries);
    }

private:
    static constexpr qsizetype MaxEntries = MaxScriptTableEntries + 1;

    QList<double> m_entries;
};

void appendLeadIn(Table &table, const ScriptPoint &first)
{
    qint64 count = 0;
    while (first.timeSeconds > static_cast<double>(count * ScriptStepMs) / MsPerSecond
           && count < table.room())
        ++count;
    table.append(static_cast<double>(count), first.speed, 0);
}

void appendRamp(Table &table, const ScriptPoint &from, const ScriptPoint &to)
{
    const double steps = (to.timeSeconds - from.timeSeconds) * MsPerSecond / ScriptStepMs;
    if (steps > 0)
        table.append(std::ceil(steps), from.speed, (to.speed - from.speed) / steps);
}

void appendTail(Table &table, const ScriptPoint &last, qint64 durationMs)
{
    const qint64 missingMs = std::max(durationMs - table.timeMs(), qint64(1));
    table.append(std::ceil(static_cast<double>(missingMs) / ScriptStepMs), last.speed, 0);
}

} // namespace

QList<double> expandScript(const ScriptPoints &points, int durationSeconds)
{
    if (points.size() < 2)
        return {};
    const auto durationMs = static_cast<qint64>(durationSeconds * MsPerSecond);
    // Each ramp may be rounded up by an entry.
    Table table(std::max(durationMs, qint64(0)) / ScriptStepMs + points.size() + 1);
    appendLeadIn(table, points.first());
    for (qsizetype i = 1; i < points.size() && table.room() > 0; ++i)
        appendRamp(table, points[i - 1], points[i]);
    appendTail(table, points.last(), durationMs);
    return table.takeEntries();
}
