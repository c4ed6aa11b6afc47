#pragma once

#include <QJsonDocument>
#include <QList>
#include <QString>
#include <QStringList>

/// One run of the command line inside the test's process.
struct CliRun
{
    int exitCode = -1;
    QString out;
    QString err;

    QJsonDocument json() const;
    /// Standard output taken as one JSON object a line.
    QList<QJsonObject> events() const;
    QStringList eventNames() const;
};

/// \a words follow the program's name.
CliRun runCli(const QStringList &words);
