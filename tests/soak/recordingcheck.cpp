#include "soak/recordingcheck.h"

#include "core/experimentfile.h"
#include "core/spinbarrecord.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

QByteArray logOf(const QString &folder)
{
    QFile file(folder + u"status.log"_s);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The log that the messages make, put together by other means than the program's.
QByteArray expectedLog(const QByteArrayList &received)
{
    QByteArray log;
    for (QByteArray line : received)
        log += line.replace(',', ';') + "\r\n";
    return log;
}

QString differenceOf(const QByteArray &log, const QByteArray &expected)
{
    qsizetype same = 0;
    while (same < qMin(log.size(), expected.size()) && log.at(same) == expected.at(same))
        ++same;
    return u"log of %1 bytes differs from %2 received at byte %3"_s.arg(log.size())
        .arg(expected.size())
        .arg(same);
}

} // namespace

QString RecordingCheck::complaint(const QString &folder, const QByteArrayList &received)
{
    const QByteArray log = logOf(folder);
    const QByteArray expected = expectedLog(received);
    if (log != expected)
        return folder + u": "_s + differenceOf(log, expected);
    SpinbarRecord record(folder, {});
    if (!record.load())
        return folder + u": experiment.json cannot be read"_s;
    record.experimentTable(false);
    return {};
}

QString RecordingCheck::complaintAboutAll(const QString &recordsFolder)
{
    QDirIterator folders(recordsFolder, QDir::Dirs | QDir::NoDotAndDotDot);
    while (folders.hasNext()) {
        const QString folder = folders.next() + u'/';
        const QByteArray log = logOf(folder);
        if (!log.isEmpty() && !log.endsWith("\r\n"))
            return folder + u": the log ends within a line"_s;
        ExperimentData data;
        if (QFile::exists(ExperimentFile::pathIn(folder))
            && !ExperimentFile::read(ExperimentFile::pathIn(folder), data))
            return folder + u": experiment.json cannot be read"_s;
    }
    return {};
}
