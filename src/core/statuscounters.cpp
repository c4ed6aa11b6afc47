#include "core/statuscounters.h"

#include "core/boundedmath.h"

#include <algorithm>
#include <iterator>

namespace {

// Out of order samples wait for a reader, but never more of them than there are sorted ones, so that a log
// with the same times over and over takes no more memory than its different times.
constexpr std::size_t MinTailBeforeSort = 4096;

bool isEarlier(const StatusSample &a, const StatusSample &b)
{
    return a.timeMs < b.timeMs;
}

} // namespace

void StatusCounters::insertOutOfOrder(qint64 timeMs, qint64 counter)
{
    if (timeMs == m_latest.timeMs) {
        m_latest.counter = counter;
        if (m_sorted == m_samples.size()) {
            m_samples.back().counter = counter;
            return;
        }
    }
    m_samples.push_back({timeMs, counter});
    if (m_samples.size() - m_sorted > std::max(MinTailBeforeSort, m_sorted))
        sortTail();
}

void StatusCounters::clear()
{
    m_samples = Samples(); // "{}" would keep the memory
    m_sorted = 0;
    m_latest = {};
}

const StatusCounters::Samples &StatusCounters::samples() const
{
    if (m_sorted != m_samples.size())
        sortTail();
    return m_samples;
}

const StatusSample *StatusCounters::firstMatch(qint64 timeMs, qint64 toleranceMs) const
{
    const Samples &all = samples();
    // The first key that is not too early is the only one that a search from the front could stop at.
    const StatusSample earliest{Bounded::subtract(timeMs, toleranceMs - 1), 0};
    const auto found = std::lower_bound(all.cbegin(), all.cend(), earliest, isEarlier);
    if (found == all.cend() || Bounded::distance(found->timeMs, timeMs) >= quint64(toleranceMs))
        return nullptr;
    return &*found;
}

void StatusCounters::sortTail() const
{
    const auto tail = m_samples.begin() + std::ptrdiff_t(m_sorted);
    std::stable_sort(tail, m_samples.end(), isEarlier);
    std::inplace_merge(m_samples.begin(), tail, m_samples.end(), isEarlier);
    // Both steps keep equal times in order of arrival, so the last of them is the one that counts.
    std::size_t kept = 0;
    for (std::size_t i = 0; i < m_samples.size(); ++i) {
        if (i + 1 == m_samples.size() || m_samples[i].timeMs != m_samples[i + 1].timeMs)
            m_samples[kept++] = m_samples[i];
    }
    m_samples.resize(kept);
    m_sorted = kept;
}
