#pragma once

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QString>

#include <functional>

class QTimer;
class SpeedScript;

/// Plays the table of a speed script by the clock, cycle after cycle. It commands nothing itself: connect
/// speedDue() to the instrument's setAngularSpeed() and stopDue() to its setMotorSpeed(0.0).
///
/// The clock alone decides what is due, so a late tick skips entries and never stretches a cycle. While the
/// clock stands before the start of the cycle nothing is commanded.
class ScriptPlayer : public QObject
{
    Q_OBJECT

public:
    /// Milliseconds of the host's clock.
    using Clock = std::function<qint64()>;

    explicit ScriptPlayer(QObject *parent = nullptr, Clock clock = QDateTime::currentMSecsSinceEpoch);
    ~ScriptPlayer() override;

    /// Ends a run and expands \a script, which is not needed afterwards; null for none.
    void setScript(const SpeedScript *script);

    /// Starting begins with the first cycle. A script without a table can run: it ends by itself with the
    /// first step. Stopping orders the stop of the drum whether or not the script runs.
    void setRunning(bool running);
    bool isRunning() const { return m_running; }

    const QList<double> &table() const { return m_table; }
    /// Cycles completed.
    int cycle() const { return m_cycle; }
    /// -1 for endless, 0 without a table.
    int cycleLimit() const { return m_cycleLimit; }
    /// The running cycle, counted from 1, and behind "/" the limit if there is one; empty while stopped.
    QString cycleText() const;

    /// What the timer calls each 50 ms during a run. Allocates nothing.
    void tick();

Q_SIGNALS:
    void runningChanged(bool running);
    void cycleChanged();
    /// Motor radians per second.
    void speedDue(double speed);
    void stopDue();
    /// Seconds into the cycle, 0 to the script's duration; -1 when stopped.
    void cursorMoved(double seconds);
    /// The last cycle is over; the player has stopped.
    void ended();

private:
    bool playEntry(qint64 index, qint64 now);

    Clock m_clock;
    QTimer *m_timer = nullptr;
    QList<double> m_table;
    double m_durationSeconds = 0;
    qint64 m_cycleStartMs = 0;
    qint64 m_index = 0; // what was acted on last
    int m_cycle = 0;
    int m_cycleLimit = 0;
    bool m_running = false;
};
