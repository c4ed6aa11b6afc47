#include "framework/common/platform.h"

#include "framework/common/processlist.h"

#include <QProcess>
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
