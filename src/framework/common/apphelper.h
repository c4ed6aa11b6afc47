#pragma once

#include <QString>
#include <QStringList>

/// The process, other processes and the system. The dialogs of this namespace stand in the widget floor.
namespace AppHelper {

/// Those of \a names that run besides this process, one entry per process, named as the system names them.
/// A name counts with and without ".exe", and with "d" behind it for a debug build.
QStringList findRunningApps(const QStringList &names);
/// The image names of all processes, one entry each; empty if the system does not tell.
QStringList getRunningApps();
/// As findRunningApps, among the image names \a running; the first entry of \a ownName is this process.
QStringList selectRunningApps(const QStringList &names, const QStringList &running, const QString &ownName);

/// Looks at once, and only if one of \a apps runs looks \a attempts times more, each after a pause, so that
/// a restarting process sees its predecessor end. The result is what runs at last.
QStringList waitForAppsToEnd(const QStringList &apps, int attempts);
/// What to tell the operator if these prevent the start.
QString runningAppsMessage(const QStringList &running);

/// Asks the application to quit and starts the program anew, beside the process that is about to end.
void restart(const QStringList &arguments);
void restart();
void quit();

/// The application's version cut to three numbers, without \a withPatch to two.
QString appVersion(bool withPatch);

/// "windows", "android", "macos", "ios", "tvos", "watchos", "linux" or "unix".
QString OS();
QString OSName();
QString OSVersion();

/// "Image (*.jpg *.png);": the filter of a file dialog, from endings with or without "*.".
QString getFileFilterString(const QString &name, const QStringList &extensions);

/// The address ("qrc:/...") of the first resource whose path ends with \a fileName, if possible in the same
/// case; a null string if there is none.
QString findInResources(const QString &fileName);

} // namespace AppHelper
