#include "service/toolrun.h"

#include "service/servicelog.h"

#include "framework/common/platform.h"

using namespace Qt::StringLiterals;

namespace {

// A tool that never stops talking must not fill the disk through the log.
constexpr qint64 MaxLoggedBytes = qint64(1024) * 1024;
constexpr int KillTimeoutMs = 2000;

} // namespace

ToolRun::ToolRun(QObject *parent, std::chrono::milliseconds silence)
    : QObject(parent)
{
    m_silenceTimer.setSingleShot(true);
    m_silenceTimer.setInterval(silence);
    // Its input stays open and empty: some tools take the end of the input for an answer and ask again at
    // once.
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    connect(&m_process, &QProcess::readyReadStandardOutput, this, &ToolRun::readOutput);
    connect(&m_process, &QProcess::finished, this, [this](int, QProcess::ExitStatus status) {
        finish(status == QProcess::CrashExit ? End::Crashed : End::Exited);
    });
    connect(
        &m_process, &QProcess::errorOccurred, this,
        [this](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart)
                finish(End::NotStarted);
        },
        Qt::QueuedConnection);
    connect(&m_silenceTimer, &QTimer::timeout, this, [this] { finish(End::Silent); });
}

ToolRun::~ToolRun()
{
    stop();
}

void ToolRun::start(const QString &commandLine)
{
    Platform::startCommandLine(m_process, commandLine);
    qCDebug(serviceLog) << "ARGS2" << m_process.arguments();
    m_silenceTimer.start();
}

void ToolRun::readOutput()
{
    const QByteArray chunk = m_process.readAllStandardOutput();
    if (chunk.isEmpty() || m_end != End::None)
        return;
    m_silenceTimer.start();
    if (m_output.totalBytes() < MaxLoggedBytes)
        qCDebug(serviceLog) << "P" << chunk;
    m_output.append(chunk);
    emit outputArrived();
}

void ToolRun::finish(End end)
{
    if (m_end != End::None)
        return;
    readOutput();
    m_end = end;
    m_silenceTimer.stop();
    if (const QString text = trouble(); !text.isEmpty())
        qCWarning(serviceLog) << text;
    stop();
    emit finished();
}

void ToolRun::stop()
{
    m_process.disconnect(this);
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.kill();
    m_process.waitForFinished(KillTimeoutMs);
}

QString ToolRun::trouble() const
{
    switch (m_end) {
    case End::Crashed:
        return tr("The tool crashed");
    case End::NotStarted:
        return tr("The tool could not be started: %1").arg(m_process.errorString());
    case End::Silent:
        return tr("The tool was silent for too long and was stopped");
    case End::Exited:
        return m_process.exitCode() == 0 ? QString()
                                         : tr("The tool ended with the code %1").arg(m_process.exitCode());
    case End::None:
        break;
    }
    return {};
}
