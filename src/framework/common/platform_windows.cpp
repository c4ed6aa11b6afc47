#include "framework/common/platform.h"

#include "framework/common/processlist.h"

#include <QProcess>
#include <QSysInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr int TaskListTimeoutMs = 30'000;

} // namespace

QStringList Platform::runningImageNames()
{
    QProcess command;
    command.start(u"tasklist"_s, {u"/NH"_s, u"/FO"_s, u"CSV"_s});
    command.waitForFinished(TaskListTimeoutMs);
    return ProcessList::fromTaskList(QString::fromUtf8(command.readAllStandardOutput()));
}

QString Platform::executableSuffix()
{
    return u".exe"_s;
}

void Platform::startCommandLine(QProcess &process, const QString &line)
{
    // A program name that begins with a quote reaches the system as it is, arguments and all, so the quotes
    // stand exactly where the line has them.
    process.start(line);
}

QString Platform::systemTitle()
{
    return "Windows "_L1 + QSysInfo::productVersion();
}

bool Platform::hasTrashFor(const QString &path)
{
    Q_UNUSED(path)
    // Each drive has its own, and a drive without one refuses.
    return true;
}
