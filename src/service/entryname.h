#pragma once

#include <QByteArray>
#include <QString>

/// Names of archive entries: whoever made the archive chose them.
namespace EntryName {

/// \a marked tells that the archive marks the name as UTF-8. Archives that don't are read as UTF-8 if they
/// can be, and otherwise as the Russian DOS code page.
QString decoded(const QByteArray &raw, bool marked);

/// The path below the folder that is unpacked into, "." for that folder itself; empty if the name could lead
/// anywhere else on any system.
QString safePath(const QString &name);

} // namespace EntryName
