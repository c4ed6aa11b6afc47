#include "soak/scriptwatch.h"

#include "device/curlyspinbar.h"
#include "scripts/speedscript.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int DurationSeconds = 10;
constexpr double TopSpeed = 30;
constexpr int StepsPerSecond = 5;
constexpr qint64 LongestSilenceMs = 1000;
constexpr double SpeedTolerance = 1e-6;

/// The ramp from 0 to the top speed, which each step commands for its end.
double dueSpeed(double seconds)
{
    const double step = std::floor(seconds * StepsPerSecond) + 1;
    return TopSpeed * step / (DurationSeconds * StepsPerSecond);
}

} // namespace

ScriptWatch::ScriptWatch(CurlySpinbar *device, const QString &folder, QObject *parent)
    : QObject(parent)
{
    SpeedScript script(folder + u"/script.xml"_s);
    script.setDurationSeconds(DurationSeconds);
    script.setPointList({{0, 0}, {DurationSeconds, TopSpeed}});
    m_player.setScript(&script);
    connect(&m_player, &ScriptPlayer::speedDue, device, &CurlySpinbar::setAngularSpeed);
    connect(&m_player, &ScriptPlayer::stopDue, device, [device] { device->setMotorSpeed(0.0); });
    connect(&m_player, &ScriptPlayer::speedDue, this, [this](double speed) {
        ++m_commands;
        m_speed = speed;
        m_silence.start();
    });
    connect(&m_player, &ScriptPlayer::cycleChanged, this, [this] {
        m_speed.reset();
        m_silence.start();
    });
    connect(&m_player, &ScriptPlayer::cursorMoved, this, &ScriptWatch::look);
}

void ScriptWatch::toggle()
{
    m_player.setRunning(!m_player.isRunning());
}

void ScriptWatch::look(double seconds)
{
    // Before the cycle's start nothing is due; at its end the next one has begun.
    if (!m_player.isRunning() || seconds <= 0 || seconds >= DurationSeconds) {
        m_silence.start();
        return;
    }
    if (m_speed && std::abs(*m_speed - dueSpeed(seconds)) > SpeedTolerance)
        Q_EMIT complained(
            u"the script commanded %1 at %2 s, where %3 is due"_s.arg(*m_speed).arg(seconds).arg(
                dueSpeed(seconds)));
    if (m_silence.elapsed() > LongestSilenceMs)
        Q_EMIT complained(u"the script was silent for %1 ms"_s.arg(m_silence.elapsed()));
}
