#pragma once

#include <QString>
#include <QStringList>

class QProcess;

/// What each operating system answers in its own way.
namespace Platform {

/// One image name per running process ("Spinbar.exe"), empty if the system does not tell. May block for
/// up to 30 s where a command has to be run.
QStringList runningImageNames();

/// What the file name of a program ends with: ".exe", or nothing.
QString executableSuffix();

/// Starts a program that is told as one line with its arguments, double quotes around what holds blanks.
void startCommandLine(QProcess &process, const QString &line);

/// The system with its version as its users call it: "Windows 11", "Debian GNU/Linux 12 (bookworm)".
QString systemTitle();

/// Whether the file or folder at \a path can be moved to the trash, which is made if need be.
bool hasTrashFor(const QString &path);

} // namespace Platform
