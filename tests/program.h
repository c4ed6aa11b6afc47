#pragma once

#include <QProcess>
#include <QStringList>

#include <csignal>

/// A program whose standard output is awaited; it ends with the object.
class Program : public QProcess
{
public:
    static constexpr int TimeoutMs = 20'000;

    Program(const QString &path, const QStringList &arguments, const QProcessEnvironment &environment,
            ProcessChannelMode channels = ForwardedErrorChannel)
    {
        setProcessChannelMode(channels);
        setProcessEnvironment(environment);
        start(path, arguments);
    }

    ~Program() override
    {
        kill();
        waitForFinished();
    }

    bool waitForText(const QByteArray &text, int timeoutMs = TimeoutMs)
    {
        while (!output.contains(text)) {
            if (!waitForReadyRead(timeoutMs))
                return false;
            output += readAllStandardOutput();
        }
        return true;
    }

    void signal(int number) { ::kill(pid_t(processId()), number); }

    QByteArray output;
};
