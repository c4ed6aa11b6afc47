#include "simulator/pacer.h"

#include <algorithm>

namespace {

constexpr qint64 NsPerMs = 1'000'000;
constexpr qint64 MostBehindNs = 1000 * NsPerMs;

} // namespace

Pacer::Pacer(qint64 periodNs, QObject *parent)
    : QObject(parent)
    , m_periodNs(std::max<qint64>(periodNs, 1))
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &Pacer::catchUp);
}

void Pacer::start()
{
    if (m_running)
        return;
    m_running = true;
    m_clock.start();
    m_dueNs = m_periodNs;
    schedule();
}

void Pacer::stop()
{
    m_running = false;
    m_timer.stop();
}

void Pacer::catchUp()
{
    // The moment is taken once: ticks that take longer than their period must leave the event loop its turn.
    const qint64 now = m_clock.nsecsElapsed();
    m_dueNs = std::max(m_dueNs, now - MostBehindNs);
    while (m_running && m_dueNs <= now) {
        m_dueNs += m_periodNs;
        emit tick();
    }
    if (m_running)
        schedule();
}

void Pacer::schedule()
{
    const qint64 waitNs = std::max<qint64>(m_dueNs - m_clock.nsecsElapsed(), 0);
    m_timer.start(int((waitNs + NsPerMs - 1) / NsPerMs));
}
