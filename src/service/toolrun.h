#pragma once

#include "service/tooloutput.h"

#include <QObject>
#include <QProcess>
#include <QTimer>

#include <chrono>

/// One run of an outside tool. It ends with the tool, or when the tool has been silent for too long, which
/// stops the tool.
class ToolRun : public QObject
{
    Q_OBJECT

public:
    enum class End { None, Exited, Crashed, NotStarted, Silent };

    static constexpr std::chrono::milliseconds DefaultSilence{30'000};

    explicit ToolRun(QObject *parent = nullptr, std::chrono::milliseconds silence = DefaultSilence);
    ~ToolRun() override;

    /// Once. \a commandLine holds the program and its arguments, quoted where they hold blanks.
    void start(const QString &commandLine);

    const ToolOutput &output() const { return m_output; }
    End end() const { return m_end; }
    /// How the tool ended, for the operator; empty if it did so without an error of its own.
    QString trouble() const;

signals:
    void outputArrived();
    /// Comes in a later pass of the event loop than the start.
    void finished();

private:
    void readOutput();
    void finish(End end);
    void stop();

    QProcess m_process;
    QTimer m_silenceTimer;
    ToolOutput m_output;
    End m_end = End::None;
};
