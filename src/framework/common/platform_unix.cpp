#include "framework/common/platform.h"

#include "framework/common/processlist.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QSysInfo>

using namespace Qt::StringLiterals;

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

bool Platform::hasTrash()
{
    // Whatever can't go to the trash of its own file system goes to this one. If that can't be made, Qt takes
    // the current folder for the trash.
    const QDir data(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    const QString trash = data.filePath(u"Trash"_s);
    return QFileInfo(trash).isDir()
           || (data.mkpath(u"."_s)
               && QDir().mkdir(trash, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}
