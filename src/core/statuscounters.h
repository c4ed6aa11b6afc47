#pragma once

#include "core/gentlegrowth.h"

#include <QtGlobal>

#include <cstddef>
#include <vector>

/// The rotation counter of one status line, in thousandths of a motor rotation, at its device time.
struct StatusSample
{
    qint64 timeMs = 0;
    qint64 counter = 0;

    bool operator==(const StatusSample &) const = default;
};

/// Rotation counters by device time. Ascending times, which is what an instrument sends, are appended at a
/// constant cost; what came out of order is sorted in when someone looks.
class StatusCounters
{
public:
    using Samples = std::vector<StatusSample>;

    /// A repeated time replaces the earlier counter.
    void insert(qint64 timeMs, qint64 counter);
    void reserve(std::size_t count) { m_samples.reserve(count); }
    /// Ahead of each insert() of a recording.
    void growGently() { ::growGently(m_samples); }
    void clear();

    bool isEmpty() const { return m_samples.empty(); }
    /// The entry with the greatest time; zeros if there is none.
    StatusSample latest() const { return m_latest; }
    /// Ascending, each time once. Valid until the next insert.
    const Samples &samples() const;
    /// The first entry in ascending order whose time differs by less than \a toleranceMs; null if none.
    const StatusSample *firstMatch(qint64 timeMs, qint64 toleranceMs) const;

private:
    void insertOutOfOrder(qint64 timeMs, qint64 counter);
    void sortTail() const;

    mutable Samples m_samples;
    /// So many samples at the front are sorted and unique.
    mutable std::size_t m_sorted = 0;
    StatusSample m_latest;
};

inline void StatusCounters::insert(qint64 timeMs, qint64 counter)
{
    const bool sorted = m_sorted == m_samples.size();
    if (!m_samples.empty() && timeMs <= m_latest.timeMs) {
        insertOutOfOrder(timeMs, counter);
        return;
    }
    m_latest.timeMs = timeMs;
    m_latest.counter = counter;
    m_samples.push_back({timeMs, counter});
    m_sorted += sorted ? 1 : 0;
}
