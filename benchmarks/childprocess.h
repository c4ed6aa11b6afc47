#pragma once

#include <QProcessEnvironment>
#include <QStringList>

/// What a program that ran to its end used.
struct ChildProcess
{
    bool succeeded = false;
    double cpuMs = 0;
    double peakMegabytes = 0;

    /// Its output is thrown away.
    static ChildProcess
    run(const QString &program, const QStringList &arguments,
        const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment());
};
