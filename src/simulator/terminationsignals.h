#pragma once

#include <QObject>

/// Brings the system's requests to end (SIGINT, SIGTERM, SIGHUP) into the event loop. One object a process;
/// POSIX only.
class TerminationSignals : public QObject
{
    Q_OBJECT

public:
    explicit TerminationSignals(QObject *parent = nullptr);
    /// Gives the signals their usual effect back.
    ~TerminationSignals() override;

signals:
    void requested();

private:
    void readPipe();
};
