#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

/// Ticks at a steady rate, also at one finer than the event loop's timers: a late tick is made up for and
/// does not push the following ones back. A process that stood still for long makes up for one second only.
class Pacer : public QObject
{
    Q_OBJECT

public:
    explicit Pacer(qint64 periodNs, QObject *parent = nullptr);

    /// The first tick comes one period from now; does nothing when running.
    void start();
    void stop();
    bool isRunning() const { return m_running; }

signals:
    void tick();

private:
    void catchUp();
    void schedule();

    qint64 m_periodNs;
    /// On m_clock.
    qint64 m_dueNs = 0;
    bool m_running = false;
    QElapsedTimer m_clock;
    QTimer m_timer;
};
