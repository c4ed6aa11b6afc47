#pragma once

#include "files.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QList>
#include <QTemporaryDir>

#include <utility>

/// One of 9 fields, as the log has it.
inline QByteArray statusLine(qint64 time, qint64 counter)
{
    return "S;1;0;28;28;28;28;" + QByteArray::number(counter, 16) + ';' + QByteArray::number(time, 16)
           + "\r\n";
}

/// A log of so many lines of a steady speed.
inline QByteArray statusLog(int lines, qint64 firstMs, qint64 counterStep)
{
    QByteArray log;
    for (int line = 0; line < lines; ++line)
        log += statusLine(firstMs + line * 200, line * counterStep);
    return log;
}

/// A folder of one experiment in a temporary place, filled and looked into by hand.
class ExperimentFolder
{
public:
    ExperimentFolder() { QDir().mkpath(path()); }

    QString path() const { return m_root.filePath(QStringLiteral("Records/Rat 7")) + QLatin1Char('/'); }
    QString recordsPath() const { return m_root.filePath(QStringLiteral("Records")) + QLatin1Char('/'); }

    void write(const char *name, const QByteArray &content) const
    {
        if (!writeFile(path() + QLatin1StringView(name), content))
            qFatal("cannot write %s", name);
    }

    QByteArray read(const char *name) const { return contents(path() + QLatin1StringView(name)); }

    QJsonObject experiment() const
    {
        return QJsonDocument::fromJson(read("experiment.json"))
            .object()[QLatin1StringView("experiment")]
            .toObject();
    }

    /// Lines of 9 fields with the given times and counters.
    void writeLog(const QList<std::pair<qint64, qint64>> &samples) const
    {
        QByteArray log;
        for (const auto &[time, counter] : samples)
            log += statusLine(time, counter);
        write("status.log", log);
    }

private:
    QTemporaryDir m_root;
};
