#pragma once

#include <QStringList>

/// What each operating system answers in its own way.
namespace Platform {

/// One image name per running process ("Spinbar.exe"), empty if the system does not tell. May block for
/// up to 30 s where a command has to be run.
QStringList runningImageNames();

} // namespace Platform
