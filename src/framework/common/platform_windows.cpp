#include "framework/common/platform.h"

#include "framework/common/processlist.h"

#include <QProcess>

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
