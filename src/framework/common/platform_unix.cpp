#include "framework/common/platform.h"

#include "framework/common/processlist.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QSysInfo>
#include <QTemporaryFile>

using namespace Qt::StringLiterals;

namespace {

// What file systems take, without "-0001.trashinfo".
constexpr qsizetype MaxTrashedNameBytes = 255 - 15;

} // namespace

QStringList Platform::runningImageNames()
{
    return ProcessList::fromProcFolder(u"/proc"_s);
}

QString Platform::executableSuffix()
{
    return {};
}

void Platform::startCommandLine(QProcess &process, const QString &line)
{
    process.startCommand(line);
}

QString Platform::systemTitle()
{
    return QSysInfo::prettyProductName();
}

bool Platform::hasTrashFor(const QString &path)
{
    // Whatever can't go to the trash of its own file system goes to this one. If that can't be made, Qt takes
    // the current folder for the trash.
    const QDir data(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    const QString trash = data.filePath(u"Trash"_s);
    if (!QFileInfo(trash).isDir()
        && !(data.mkpath(u"."_s)
             && QDir().mkdir(trash, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner)))
        return false;
    // The trash keeps a note beside what it takes. If that can't be made, as on a full disk, Qt tries
    // forever.
    const QString notes = trash + "/info"_L1;
    return QFile::encodeName(QFileInfo(path).fileName()).size() <= MaxTrashedNameBytes && QDir().mkpath(notes)
           && QTemporaryFile(notes + "/note"_L1).open();
}
