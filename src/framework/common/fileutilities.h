#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

class QFile;

/// Paths, folders and listings.
namespace FileUtilities {

/// True if the folder exists or could be made, with parents.
bool createIfNotExists(const QString &folder);

/// Forward slashes, none doubled, one at the end; an empty path stays empty.
QString FolderSlash(const QString &path);

/// Sub-folders without those whose name begins with "."; each ends with "/". With \a recursive the
/// sub-folders of each follow directly behind it, with their path from \a folder.
QStringList GetSubfolders(const QString &folder, bool fullPath, bool recursive);

QStringList getFilesOfType(const QString &folder, const QString &type, bool recursive, bool fullPath);

/// \a types are suffixes, with or without "*."; symbolic links to folders are not followed.
QStringList getFilesOfTypes(const QString &folder, const QStringList &types, bool recursive, bool fullPath);

/// Removes the folder with all that is in it and, unless \a removeFolder, makes it anew. The result is
/// that of the removal; false if the folder does not exist.
bool clearFolder(const QString &folder, bool removeFolder);

QString base64_encode(const QByteArray &bytes);
QByteArray base64_decode_as_bytes(const QString &text);

/// Undoes the percent escapes of "+", "=", "/" and "," and then decodes.
QString base64_decodeFromPercentEncoding(const QString &text);

/// With one write call as long as there is room. False, with the file's error set, if not all went in.
bool writeAll(QFile &file, const QByteArray &bytes);

enum class WriteResult { Whole, InPart, NotOpened };

/// Puts \a text in the place of the file's content with one write that covers all of a longer old one with
/// blanks, which are cut afterwards: whenever the process ends, the file holds a whole text. A shorter old
/// one gets blanks behind it first, so a full disk costs the new text and not the old. \a error tells a
/// failure.
WriteResult overwrite(const QString &path, const QByteArray &text, QString *error = nullptr);

/// False if the name holds one of / \ : * ? < > "
bool acceptableFileName(const QString &name);

/// The size of an existing file in a unit that suits it, empty if there is no such file.
QString filesizeNice(const QString &path);

} // namespace FileUtilities
