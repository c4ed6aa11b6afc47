#pragma once

#include <QByteArray>
#include <QHash>
#include <QtEndian>

#include <zlib.h>

/// The entries of a zip archive by their names, read from its central directory. Not through an archive
/// library: those define the functions that the library which writes workbooks calls in another one.
inline QHash<QByteArray, QByteArray> zipEntries(const QByteArray &archive)
{
    constexpr quint32 DirectoryMagic = 0x02014b50;
    constexpr quint32 EndMagic = 0x06054b50;
    constexpr qsizetype EndBytes = 22;
    constexpr qsizetype DirectoryBytes = 46;
    constexpr qsizetype LocalBytes = 30;
    const auto number16 = [&](qsizetype at) { return qFromLittleEndian<quint16>(archive.constData() + at); };
    const auto number32 = [&](qsizetype at) { return qFromLittleEndian<quint32>(archive.constData() + at); };

    QHash<QByteArray, QByteArray> entries;
    const qsizetype end = archive.size() - EndBytes;
    if (end < 0 || number32(end) != EndMagic)
        return entries;
    qsizetype at = number32(end + 16);
    while (at + DirectoryBytes <= end && number32(at) == DirectoryMagic) {
        const QByteArray name = archive.mid(at + DirectoryBytes, number16(at + 28));
        const qsizetype local = number32(at + 42);
        const qsizetype data = local + LocalBytes + number16(local + 26) + number16(local + 28);
        QByteArray packed = archive.mid(data, number32(at + 20));
        QByteArray plain(number32(at + 24), Qt::Uninitialized);
        z_stream stream{};
        stream.next_in = reinterpret_cast<Bytef *>(packed.data());
        stream.avail_in = uInt(packed.size());
        stream.next_out = reinterpret_cast<Bytef *>(plain.data());
        stream.avail_out = uInt(plain.size());
        constexpr int RawDeflate = -MAX_WBITS;
        if (inflateInit2(&stream, RawDeflate) == Z_OK && inflate(&stream, Z_FINISH) == Z_STREAM_END)
            entries.insert(name, plain);
        inflateEnd(&stream);
        at += DirectoryBytes + name.size() + number16(at + 30) + number16(at + 32);
    }
    return entries;
}
