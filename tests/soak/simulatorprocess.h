#pragma once

#include <QProcess>
#include <QRandomGenerator>
#include <QString>

/// A run of the simulated instrument with faults at random moments, or the replay of a log.
class SimulatorProcess
{
public:
    /// \a folder takes the link and the scenario.
    explicit SimulatorProcess(const QString &folder);
    ~SimulatorProcess();

    /// \a seconds of the instrument's time are planned; \a power off and on, noise, cut lines.
    bool startWithFaults(double rate, int seconds, QRandomGenerator &random);
    bool startReplay(double rate, const QString &log);
    /// Like a cable that is pulled.
    void kill();
    bool isRunning() const { return m_process.state() == QProcess::Running; }

    QString path() const { return m_path; }

private:
    bool start(QStringList arguments);

    QString m_folder;
    QString m_path;
    QProcess m_process;
};
