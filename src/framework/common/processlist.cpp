#include "framework/common/processlist.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// What the system appends when the file was replaced under the running program, as an update does.
constexpr auto DeletedMark = " (deleted)"_L1;
constexpr qint64 LongestArgument = 4096;

QString executablePath(const QString &processFolder)
{
    QString path = QFile::symLinkTarget(processFolder + "/exe"_L1);
    if (path.endsWith(DeletedMark))
        path.chop(DeletedMark.size());
    if (!path.isEmpty())
        return path;
    QFile arguments(processFolder + "/cmdline"_L1);
    if (!arguments.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(arguments.read(LongestArgument).split('\0').constFirst());
}

bool isProcessFolder(const QString &name)
{
    return std::all_of(name.cbegin(), name.cend(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

} // namespace

QStringList ProcessList::fromTaskList(const QString &csv)
{
    QStringList names;
    const QStringList lines = csv.split("\r\n"_L1, Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        const QStringList parts = line.split("\","_L1);
        if (parts.size() < 2)
            continue;
        if (const QString name = parts.first().mid(1); name.contains('.'_L1))
            names.append(name.trimmed());
    }
    return names;
}

QStringList ProcessList::fromProcFolder(const QString &folder)
{
    QStringList names;
    const QStringList processes = QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &process : processes) {
        if (!isProcessFolder(process))
            continue;
        const QString path = executablePath(folder + '/'_L1 + process);
        if (const QString name = path.sliced(path.lastIndexOf('/'_L1) + 1).trimmed(); !name.isEmpty())
            names.append(name + ".exe"_L1);
    }
    return names;
}
