#pragma once

#include <QString>

/// The list of changes that comes with the program: entries newest first, each a line with version and date
/// and then one block for each language, such as "<ru-RU>" to "</ru-RU>", whose lines begin with "+ ".
namespace ChangeLog {

/// The text as it stands, with line ends "\r\n": a "txt" file of \a folder that names the application, else
/// the one of the resources, else another change log of \a folder. Empty if there is none.
QString find(const QString &folder, const QString &application);

/// What readers of \a language ("ru_RU") see: their blocks without the tags, and no others.
QString inLanguage(QString text, const QString &language);

} // namespace ChangeLog
