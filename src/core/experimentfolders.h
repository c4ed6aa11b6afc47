#pragma once

#include <QString>
#include <QStringList>

/// The folders of all files with the suffix "json" under \a recordsFolder, absolute and with a trailing "/":
/// a folder's own files before its sub-folders, each by name. A folder with two such files comes twice.
/// Hidden names and symbolic links to folders are left out. Looks at each folder once.
QStringList experimentFolders(const QString &recordsFolder);
