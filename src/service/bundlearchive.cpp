#include "service/bundlearchive.h"

#include "service/entryname.h"

#include "framework/common/fileutilities.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <zip.h>

#include <algorithm>

using namespace Qt::StringLiterals;

using Kind = BundleProblem::Kind;

namespace {

constexpr qint64 ChunkBytes = qint64(64) * 1024;
// Each entry has its header in the archive's directory. The files' own bytes may read like some.
constexpr QByteArrayView HeaderSignature("PK\x01\x02");
constexpr qsizetype MaxHeaders = qsizetype(100) * BundleArchive::MaxEntries;
// A Unix file mode stands in the upper half of an entry's attributes.
constexpr int ModeShift = 16;
constexpr quint32 TypeMask = 0170000;
constexpr quint32 PlainFile = 0100000;
constexpr quint32 Folder = 0040000;

struct CloseEntry
{
    void operator()(zip_file_t *file) const { zip_fclose(file); }
};

zip_t *openedArchive(const QByteArray &bytes)
{
    zip_source_t *source = zip_source_buffer_create(bytes.constData(), quint64(bytes.size()), 0, nullptr);
    if (!source)
        return nullptr;
    zip_t *archive = zip_open_from_source(source, ZIP_RDONLY, nullptr);
    if (!archive)
        zip_source_free(source);
    return archive;
}

QString entryName(zip_t *archive, quint64 index)
{
    const QByteArray raw = zip_get_name(archive, index, ZIP_FL_ENC_RAW);
    // Read by the letter of the format, a name that is not marked changes if it holds more than ASCII.
    const QByteArray strict = zip_get_name(archive, index, ZIP_FL_ENC_STRICT);
    return EntryName::decoded(raw, raw == strict);
}

bool isLinkOrDevice(zip_t *archive, quint64 index)
{
    quint8 system = 0;
    quint32 attributes = 0;
    if (zip_file_get_external_attributes(archive, index, 0, &system, &attributes) != 0)
        return true;
    const quint32 type = (attributes >> ModeShift) & TypeMask;
    return type != 0 && type != PlainFile && type != Folder;
}

} // namespace

void BundleArchive::Discard::operator()(zip *archive) const
{
    zip_discard(archive);
}

BundleArchive::BundleArchive(const QByteArray &bytes)
    : m_bytes(bytes)
    // Opening takes memory for each entry.
    , m_holdsTooMany(m_bytes.count(HeaderSignature) > MaxHeaders)
    , m_archive(m_holdsTooMany ? nullptr : openedArchive(m_bytes))
{}

BundleProblem BundleArchive::unpack(const QString &folder)
{
    if (m_holdsTooMany)
        return {Kind::TooManyEntries, {}};
    if (!m_archive)
        return {Kind::NotAnArchive, {}};
    BundleProblem problem = readEntries();
    qint64 writtenBytes = 0;
    for (const Entry &entry : std::as_const(m_entries)) {
        if (problem.kind != Kind::None)
            break;
        problem = write(entry, folder + u'/' + entry.path, writtenBytes);
    }
    return problem;
}

BundleProblem BundleArchive::readEntries()
{
    m_entries.clear();
    const qint64 count = zip_get_num_entries(m_archive.get(), 0);
    if (count > MaxEntries)
        return {Kind::TooManyEntries, {}};
    qint64 statedBytes = 0;
    for (qint64 index = 0; index < count; ++index) {
        if (const BundleProblem problem = readEntry(quint64(index), statedBytes); problem.kind != Kind::None)
            return problem;
    }
    return {};
}

BundleProblem BundleArchive::readEntry(quint64 index, qint64 &statedBytes)
{
    zip_stat_t stat;
    constexpr zip_uint64_t Needed = ZIP_STAT_NAME | ZIP_STAT_SIZE | ZIP_STAT_ENCRYPTION_METHOD;
    if (zip_stat_index(m_archive.get(), index, 0, &stat) != 0 || (stat.valid & Needed) != Needed)
        return {Kind::Damaged, QString::number(index)};
    const QString name = entryName(m_archive.get(), index);
    const Entry entry{index, EntryName::safePath(name), name.endsWith(u'/')};
    // Case alone makes no difference on Windows.
    const bool isRepeated = std::any_of(m_entries.begin(), m_entries.end(), [&](const Entry &other) {
        return other.path.compare(entry.path, Qt::CaseInsensitive) == 0;
    });
    if (entry.path.isEmpty() || isRepeated || stat.encryption_method != ZIP_EM_NONE
        || isLinkOrDevice(m_archive.get(), index))
        return {Kind::ForbiddenEntry, name};
    if (stat.size > quint64(MaxUnpackedBytes - statedBytes))
        return {Kind::TooLarge, name};
    statedBytes += qint64(stat.size);
    m_entries.append(entry);
    return {};
}

BundleProblem BundleArchive::write(const Entry &entry, const QString &path, qint64 &writtenBytes)
{
    const QString folder = entry.isFolder ? path : QFileInfo(path).path();
    if (!FileUtilities::createIfNotExists(folder))
        return {Kind::CannotWrite, folder};
    if (entry.isFolder)
        return {};
    const std::unique_ptr<zip_file_t, CloseEntry> source(zip_fopen_index(m_archive.get(), entry.index, 0));
    if (!source)
        return {Kind::Damaged, entry.path};
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        return {Kind::CannotWrite, file.errorString()};
    QByteArray chunk(ChunkBytes, Qt::Uninitialized);
    for (;;) {
        const qint64 got = zip_fread(source.get(), chunk.data(), ChunkBytes);
        if (got <= 0)
            return {got < 0 ? Kind::Damaged : Kind::None, got < 0 ? entry.path : QString()};
        // The stated sizes are only what the archive's maker says.
        writtenBytes += got;
        if (writtenBytes > MaxUnpackedBytes)
            return {Kind::TooLarge, entry.path};
        if (!FileUtilities::writeAll(file, QByteArray::fromRawData(chunk.constData(), got)))
            return {Kind::CannotWrite, file.errorString()};
    }
}
