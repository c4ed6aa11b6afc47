#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

/// Notices when the event loop is held up by the program itself. What the machine took for others counts
/// nothing.
class Watchdog : public QObject
{
    Q_OBJECT

public:
    static constexpr int LimitMs = 100;

    explicit Watchdog(QObject *parent = nullptr);

    qint64 longestMs() const { return m_longestMs; }
    int holdups() const { return m_holdups; }
    /// What the tester itself does between two passes of the loop is left out.
    void forgive();

private:
    void look();

    QTimer m_timer;
    QElapsedTimer m_clock;
    qint64 m_waitedMs = 0;
    qint64 m_stolenMs = 0;
    qint64 m_longestMs = 0;
    int m_holdups = 0;
};
