#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <memory>

struct zip;

/// What may be wrong with an archive, and with which entry or for which reason.
struct BundleProblem
{
    enum class Kind { None, NotAnArchive, ForbiddenEntry, TooManyEntries, TooLarge, Damaged, CannotWrite };

    Kind kind = Kind::None;
    QString detail;
};

/// A zip archive in memory. All its entries are looked at before anything is written, and only plain files
/// and folders inside the target folder ever are.
class BundleArchive
{
public:
    static constexpr int MaxEntries = 1000;
    static constexpr qint64 MaxUnpackedBytes = qint64(256) * 1024 * 1024;

    explicit BundleArchive(const QByteArray &bytes);

    /// Into \a folder, which exists and is empty. After a problem it may hold a part of the archive.
    BundleProblem unpack(const QString &folder);

private:
    struct Discard
    {
        void operator()(zip *archive) const;
    };
    struct Entry
    {
        quint64 index = 0;
        QString path;
        bool isFolder = false;
    };

    BundleProblem readEntries();
    BundleProblem readEntry(quint64 index, qint64 &statedBytes);
    BundleProblem write(const Entry &entry, const QString &path, qint64 &writtenBytes);

    QByteArray m_bytes;
    bool m_holdsTooMany = false;
    std::unique_ptr<zip, Discard> m_archive;
    QList<Entry> m_entries;
};
