#pragma once

#include <QString>

#include <functional>

namespace Platform {

/// Has the system's file manager show \a path: a file selected in its folder, a folder as it is. Calls
/// \a onFailure, maybe later, if the file manager cannot be reached.
void showInFileManager(const QString &path, const std::function<void()> &onFailure);

} // namespace Platform
