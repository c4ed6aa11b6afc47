#include "soak/watchdog.h"

#include "soak/processfigures.h"

#include <QTextStream>

#include <utility>

using namespace std::chrono_literals;

Watchdog::Watchdog(QObject *parent)
    : QObject(parent)
{
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &Watchdog::look);
    forgive();
    m_timer.start(10ms);
}

void Watchdog::forgive()
{
    m_clock.start();
    m_waitedMs = ProcessFigures::waitedForProcessorMs();
    m_stolenMs = ProcessFigures::stolenFromMachineMs();
}

void Watchdog::look()
{
    const qint64 waited = ProcessFigures::waitedForProcessorMs();
    const qint64 held = m_clock.restart() - (waited - m_waitedMs);
    m_waitedMs = waited;
    const qint64 stolenBefore = std::exchange(m_stolenMs, ProcessFigures::stolenFromMachineMs());
    m_longestMs = qMax(m_longestMs, held);
    if (held <= LimitMs)
        return;
    ++m_holdups;
    QTextStream(stdout) << "The event loop was held up for " << held << " ms; the machine was halted for "
                        << m_stolenMs - stolenBefore << " ms\n";
}
