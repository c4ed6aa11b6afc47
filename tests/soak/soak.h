#pragma once

#include "soak/scriptwatch.h"
#include "soak/simulatorprocess.h"
#include "soak/watchdog.h"

#include "core/spinbarmodel.h"

#include <QByteArrayList>
#include <QDeadlineTimer>
#include <QObject>
#include <QRandomGenerator>
#include <QSet>
#include <QTimer>

#include <memory>

class CurlySpinbar;

/// Lets the application's model work for hours against simulated instruments at high rate, with faults of
/// the line, the instrument, the disk and the host's clock at random moments, and checks every recording that
/// ends.
class Soak : public QObject
{
    Q_OBJECT

public:
    Soak(const QString &folder, quint32 seed, QObject *parent = nullptr);
    ~Soak() override;

    /// True if nothing was found; prints what happened.
    bool run(std::chrono::milliseconds duration);

private:
    enum class Disk { Fine, Full, ReadOnly };

    void connectModel();
    void plugIn();
    void act();
    void actWhileRecording();
    void startRecording();
    void finishRecording();
    void moveClock();
    void breakDisk();
    void mendDisk();
    void sampleFigures();
    void complain(const QString &text);
    bool report();

    QString m_folder;
    QRandomGenerator m_random;
    std::unique_ptr<SpinbarModel> m_model;
    SimulatorProcess m_simulator;
    std::unique_ptr<ScriptWatch> m_script;
    Watchdog m_watchdog;
    QTimer m_actions;
    QTimer m_samples;
    QDeadlineTimer m_deadline;

    Disk m_disk = Disk::Fine;
    bool m_diskFailedNow = false;
    QString m_recordFolder;
    QByteArrayList m_received;
    QSet<QString> m_recordFolders;
    qint64 m_lastStartMs = 0;

    qint64 m_messages = 0;
    int m_recordings = 0;
    int m_brokenDisks = 0;
    int m_unplugs = 0;
    int m_clockJumps = 0;
    int m_complaints = 0;
    QList<qint64> m_residentKiB;
    QList<int> m_descriptors;
};
