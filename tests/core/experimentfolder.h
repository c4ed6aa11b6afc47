#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QList>
#include <QTemporaryDir>

#include <utility>

/// A folder of one experiment in a temporary place, filled and looked into by hand.
class ExperimentFolder
{
public:
    ExperimentFolder() { QDir().mkpath(path()); }

    QString path() const { return m_root.filePath(QStringLiteral("Records/Rat 7")) + QLatin1Char('/'); }
    QString recordsPath() const { return m_root.filePath(QStringLiteral("Records")) + QLatin1Char('/'); }

    void write(const char *name, const QByteArray &content) const
    {
        QFile file(path() + QLatin1StringView(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", name);
    }

    QByteArray read(const char *name) const
    {
        QFile file(path() + QLatin1StringView(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

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
            log += "S;1;0;28;28;28;28;" + QByteArray::number(counter, 16) + ';' + QByteArray::number(time, 16)
                   + "\r\n";
        write("status.log", log);
    }

private:
    QTemporaryDir m_root;
};
