#pragma once

#include <QObject>
#include <QString>

/// Appends lines to the process's one log file, from any thread. The first line fixes the file; whatever path
/// later lines come with, they go there too. Each line has the time of its writing in front and is in the
/// file when the call returns; a line that can't be written is lost. The flags have no effect.
class NLogger : public QObject
{
    Q_OBJECT

public:
    /// What Log() puts in front of the date.
    static void setLoggerPath(const QString &prefix);

    static void Log(const QString &type, const QString &text, bool flag);
    static void Log(const QString &text, bool flag);

    /// The file of the day: \a prefix, the date and ".log".
    static void LogTo(const QString &type, const QString &text, const QString &prefix, bool flag);
    static void LogTo(const QString &text, const QString &prefix, bool flag);

    static void LogToFile(const QString &type, const QString &text, const QString &path, bool flag);
    static void LogToFile(const QString &text, const QString &path, bool flag);

    /// In the user's documents, named by the application and the present moment.
    static QString standardLogFilePath();
};
