#include "framework/common/fileutilities.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr double BytesPerUnitStep = 1024.0;
constexpr int FileSizeDecimals = 1;
// Far above what is ever written, so that a foreign file of any size costs no memory.
constexpr qint64 MaxCoveredBytes = qint64(64) * 1024 * 1024;

void appendSubfolders(const QString &base, const QString &prefix, bool recursive, QStringList &out)
{
    // A link may lead back to where it stands: it is listed, but not followed.
    const QFileInfoList folders = QDir(base).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QFileInfo &folder : folders) {
        const QString name = folder.fileName();
        if (name.startsWith('.'_L1))
            continue;
        out.append(prefix + name + '/'_L1);
        if (recursive && !folder.isSymLink())
            appendSubfolders(base + name + '/'_L1, prefix + name + '/'_L1, true, out);
    }
}

bool hasSuffix(const QString &name, const QStringList &suffixes)
{
    return suffixes.isEmpty() || std::any_of(suffixes.cbegin(), suffixes.cend(), [&](const QString &suffix) {
               return name.endsWith(suffix, Qt::CaseInsensitive);
           });
}

void appendFiles(const QString &folder, const QString &prefix, const QStringList &suffixes, bool recursive,
                 bool fullPath, QStringList &out)
{
    // One look at the folder for both, and no name filter, which is compiled anew for each: a lab keeps
    // thousands of folders.
    const QDir dir(folder);
    const auto folders = recursive ? QDir::Dirs | QDir::NoDotAndDotDot : QDir::Filter(0);
    const QFileInfoList entries = dir.entryInfoList(QDir::Files | folders);
    const QString base = fullPath ? dir.absolutePath() + '/'_L1 : prefix;
    for (const QFileInfo &entry : entries) {
        if (!entry.isDir() && hasSuffix(entry.fileName(), suffixes))
            out.append(base + entry.fileName());
    }
    for (const QFileInfo &entry : entries) {
        const QString name = entry.fileName();
        if (entry.isDir() && !entry.isSymLink())
            appendFiles(dir.filePath(name), prefix + name + '/'_L1, suffixes, true, fullPath, out);
    }
}

/// Lengthens an old text by blanks, so that a full disk refuses a longer one while the old one still stands.
bool makeRoom(QFile &file, qint64 bytes, QString &error)
{
    const qint64 before = file.size();
    if (before == 0 || bytes <= before)
        return true;
    const QByteArray blanks(bytes - before, ' ');
    if (file.seek(before) && FileUtilities::writeAll(file, blanks) && file.seek(0))
        return true;
    error = file.errorString();
    file.resize(before);
    return false;
}

} // namespace

bool FileUtilities::createIfNotExists(const QString &folder)
{
    return QDir(folder).exists() || QDir().mkpath(folder);
}

QString FileUtilities::FolderSlash(const QString &path)
{
    if (path.isEmpty())
        return path;
    QString result = path;
    result.replace('\\'_L1, '/'_L1).replace("//"_L1, "/"_L1);
    if (!result.endsWith('/'_L1))
        result.append('/'_L1);
    return result;
}

QStringList FileUtilities::GetSubfolders(const QString &folder, bool fullPath, bool recursive)
{
    QStringList folders;
    const QString base = FolderSlash(folder);
    appendSubfolders(base, fullPath ? base : QString(), recursive, folders);
    return folders;
}

QStringList FileUtilities::getFilesOfType(const QString &folder, const QString &type, bool recursive,
                                          bool fullPath)
{
    return getFilesOfTypes(folder, {type}, recursive, fullPath);
}

QStringList FileUtilities::getFilesOfTypes(const QString &folder, const QStringList &types, bool recursive,
                                           bool fullPath)
{
    if (!QDir(folder).exists())
        return {};
    static const QRegularExpression wildcard(u"[\\*\\.]+"_s);
    QStringList suffixes;
    for (const QString &type : types) {
        if (!type.isEmpty())
            suffixes.append('.'_L1 + QString(type).remove(wildcard));
    }
    QStringList files;
    appendFiles(folder, {}, suffixes, recursive, fullPath, files);
    return files;
}

bool FileUtilities::clearFolder(const QString &folder, bool removeFolder)
{
    QDir dir(folder);
    if (!dir.exists())
        return false;
    const bool removed = dir.removeRecursively();
    if (!removeFolder) {
        qDebug() << "Creating dir" << folder;
        QDir().mkpath(folder);
    }
    return removed;
}

QString FileUtilities::base64_encode(const QByteArray &bytes)
{
    return QString::fromLatin1(bytes.toBase64());
}

QByteArray FileUtilities::base64_decode_as_bytes(const QString &text)
{
    return QByteArray::fromBase64(text.toUtf8());
}

QString FileUtilities::base64_decodeFromPercentEncoding(const QString &text)
{
    QString plain = text;
    plain.replace("%2B"_L1, "+"_L1)
        .replace("%3D"_L1, "="_L1)
        .replace("%2F"_L1, "/"_L1)
        .replace("%2C"_L1, ","_L1);
    return QString::fromUtf8(base64_decode_as_bytes(plain));
}

bool FileUtilities::writeAll(QFile &file, const QByteArray &bytes)
{
    // A write that stops halfway is no error yet: only the try with the rest tells the reason.
    qint64 done = 0;
    for (qint64 got = 1; done < bytes.size() && got > 0; done += std::max<qint64>(got, 0))
        got = file.write(bytes.constData() + done, bytes.size() - done);
    return done == bytes.size();
}

FileUtilities::WriteResult FileUtilities::overwrite(const QString &path, const QByteArray &text,
                                                    QString *error)
{
    QFile file(path);
    // A file that may be written but not read can only be opened in the second way.
    const bool opened = file.open(QIODevice::ReadWrite | QIODevice::Unbuffered)
                        || file.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    QString reason;
    const QByteArray padded = text.leftJustified(std::min(file.size(), MaxCoveredBytes), ' ');
    const bool whole = opened && makeRoom(file, padded.size(), reason) && writeAll(file, padded)
                       && (file.size() == text.size() || file.resize(text.size()));
    if (!whole && error)
        *error = reason.isEmpty() ? file.errorString() : reason;
    if (!opened)
        return WriteResult::NotOpened;
    return whole ? WriteResult::Whole : WriteResult::InPart;
}

bool FileUtilities::acceptableFileName(const QString &name)
{
    static const QRegularExpression forbidden(u"[/\\\\:*?<>\"]"_s);
    return !name.contains(forbidden);
}

QString FileUtilities::filesizeNice(const QString &path)
{
    static constexpr std::array units{QT_TRANSLATE_NOOP("Filesize", "B"), QT_TRANSLATE_NOOP("Filesize", "KB"),
                                      QT_TRANSLATE_NOOP("Filesize", "MB"),
                                      QT_TRANSLATE_NOOP("Filesize", "GB"),
                                      QT_TRANSLATE_NOOP("Filesize", "TB")};
    const QFileInfo info(path);
    if (!info.isFile())
        return {};
    auto size = static_cast<double>(info.size());
    std::size_t unit = 0;
    while (size >= BytesPerUnitStep && unit + 1 < units.size()) {
        size /= BytesPerUnitStep;
        ++unit;
    }
    return QString::number(size, 'f', unit == 0 ? 0 : FileSizeDecimals) + ' '_L1
           + QCoreApplication::translate("Filesize", units[unit]);
}
