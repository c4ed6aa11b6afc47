#include "scripts/scriptplayer.h"

#include "scripts/scriptexpansion.h"
#include "scripts/speedscript.h"

#include <QTimer>

#include <algorithm>
#include <utility>

namespace {

// A quarter of the step, so that an entry is at most this late.
constexpr int TickMs = ScriptStepMs / 4;
constexpr double MsPerSecond = 1000;
constexpr double NoCursor = -1;

} // namespace

ScriptPlayer::ScriptPlayer(QObject *parent, Clock clock)
    : QObject(parent)
    , m_clock(std::move(clock))
{}

ScriptPlayer::~ScriptPlayer()
{
    setRunning(false);
}

void ScriptPlayer::setScript(const SpeedScript *script)
{
    setRunning(false);
    m_table.clear();
    m_cycleLimit = 0;
    m_durationSeconds = 0;
    if (!script || script->pointList().size() < 2)
        return;
    m_cycleLimit = script->cycleLimit();
    m_durationSeconds = script->getDurationSeconds();
    m_table = script->table();
}

void ScriptPlayer::setRunning(bool running)
{
    m_running = running;
    if (m_timer)
        m_timer->stop();
    Q_EMIT runningChanged(running);
    if (!running) {
        Q_EMIT cycleChanged();
        Q_EMIT stopDue();
        Q_EMIT cursorMoved(NoCursor);
        return;
    }
    m_index = 0;
    m_cycle = 0;
    if (!m_timer) {
        m_timer = new QTimer(this);
        m_timer->setTimerType(Qt::PreciseTimer);
        m_timer->setInterval(TickMs);
        connect(m_timer, &QTimer::timeout, this, &ScriptPlayer::tick);
    }
    m_cycleStartMs = m_clock();
    m_timer->start();
    Q_EMIT cycleChanged();
}

QString ScriptPlayer::cycleText() const
{
    if (!m_running)
        return {};
    const QString number = QString::number(m_cycle + 1);
    return m_cycleLimit > 0 ? number + u'/' + QString::number(m_cycleLimit) : number;
}

void ScriptPlayer::tick()
{
    if (!m_running)
        return;
    const qint64 now = m_clock();
    const qint64 elapsedMs = now - m_cycleStartMs;
    const qint64 index = elapsedMs / ScriptStepMs;
    // Entry 0 is never sent: the index starts there, and only a change of it counts.
    if (index != m_index && !playEntry(index, now))
        return;
    Q_EMIT cursorMoved(std::clamp(static_cast<double>(elapsedMs) / MsPerSecond, 0.0, m_durationSeconds));
}

/// False if the run is over.
bool ScriptPlayer::playEntry(qint64 index, qint64 now)
{
    m_index = index;
    if (index < 0)
        return true;
    if (index < m_table.size()) {
        Q_EMIT speedDue(m_table.at(index));
        return m_running;
    }
    if (m_cycleLimit >= 0 && m_cycle + 1 >= m_cycleLimit) {
        setRunning(false);
        Q_EMIT ended();
        return false;
    }
    ++m_cycle;
    m_index = 0;
    m_cycleStartMs = now;
    Q_EMIT cycleChanged();
    return m_running;
}
