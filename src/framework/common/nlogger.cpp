#include "framework/common/nlogger.h"

#include "framework/common/texthelper.h"

#include <QCoreApplication>
#include <QDate>
#include <QFile>
#include <QLoggingCategory>
#include <QMutex>
#include <QStandardPaths>
#include <QTime>

#include <atomic>

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(lcLogger, "spinbar.logger")

struct LogFile
{
    QMutex mutex;
    QString prefix;
    QString path;
};

LogFile &logFile()
{
    static LogFile file;
    return file;
}

QString withType(const QString &type, const QString &text)
{
    return type.isEmpty() ? text : type + '\t'_L1 + text;
}

/// Empty on success, otherwise the reason.
QString append(const QString &text, const QString &path)
{
    LogFile &log = logFile();
    const QMutexLocker lock(&log.mutex);
    if (log.path.isEmpty())
        log.path = path;
    QFile file(log.path);
    if (!file.open(QIODevice::Append | QIODevice::Unbuffered))
        return file.errorString();
    const QByteArray line =
        (QTime::currentTime().toString(u"hh:mm:ss.zzz"_s) + '\t'_L1 + text + "\r\n"_L1).toUtf8();
    return file.write(line) == line.size() ? QString() : file.errorString();
}

} // namespace

void NLogger::setLoggerPath(const QString &prefix)
{
    const QMutexLocker lock(&logFile().mutex);
    logFile().prefix = prefix;
}

void NLogger::Log(const QString &type, const QString &text, bool flag)
{
    Log(withType(type, text), flag);
}

void NLogger::Log(const QString &text, bool flag)
{
    QString prefix;
    {
        const QMutexLocker lock(&logFile().mutex);
        prefix = logFile().prefix;
    }
    LogTo(text, prefix, flag);
}

void NLogger::LogTo(const QString &type, const QString &text, const QString &prefix, bool flag)
{
    LogTo(withType(type, text), prefix, flag);
}

void NLogger::LogTo(const QString &text, const QString &prefix, bool flag)
{
    LogToFile(text, prefix + QDate::currentDate().toString(u"yyyy.MM.dd"_s) + ".log"_L1, flag);
}

void NLogger::LogToFile(const QString &type, const QString &text, const QString &path, bool flag)
{
    LogToFile(withType(type, text), path, flag);
}

void NLogger::LogToFile(const QString &text, const QString &path, bool)
{
    const QString error = append(text, path);
    if (error.isEmpty())
        return;
    // Once, and with the mutex free: a message handler may well log to the file that fails.
    static std::atomic_flag told;
    if (!told.test_and_set())
        qCWarning(lcLogger).noquote() << "No log line can be written:" << error;
}

QString NLogger::standardLogFilePath()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + '/'_L1
           + QCoreApplication::applicationName() + '_'_L1 + TextHelper::DateTimeFileString({}, false)
           + ".log"_L1;
}
