#pragma once

#include <QString>
#include <QStringList>

/// Image names of processes, one entry each, as the running-apps check compares them: the name of the
/// executable file with ".exe" behind it on every platform.
namespace ProcessList {

/// From the comma-separated output of "tasklist" without a header line.
QStringList fromTaskList(const QString &csv);

/// From a process file system as "/proc" has it. The executable link names the image; where it may not be
/// read, the first argument does. A process without either (kernel thread, ended but not yet collected)
/// has no entry.
QStringList fromProcFolder(const QString &folder);

} // namespace ProcessList
