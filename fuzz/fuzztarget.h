#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>

/// What the fuzz targets share. Each defines LLVMFuzzerTestOneInput and says what it claims by require().
namespace FuzzTarget {

inline QByteArray bytes(const std::uint8_t *data, std::size_t size)
{
    return {reinterpret_cast<const char *>(data), qsizetype(size)};
}

/// Ends the process, which the fuzzer reports as a find.
void require(bool holds, const char *claim);

/// A folder in memory where there is one, made anew for each process and removed at its end; ends with "/".
QString scratchFolder();

/// Puts \a content into the scratch folder and returns the path.
QString scratchFile(const QString &name, const QByteArray &content);

} // namespace FuzzTarget
