#pragma once

#include "files.h"

#include <QList>

#include <zip.h>

/// Makes firmware bundles, sound and unsound ones.
namespace BundleMaker {

struct Entry
{
    QByteArray name;
    QByteArray data;
    /// As Unix has it, with the type; 0 leaves it out.
    quint32 mode = 0;
    bool marksUtf8 = false;
};

inline QByteArray archive(const QList<Entry> &entries)
{
    zip_source_t *target = zip_source_buffer_create(nullptr, 0, 0, nullptr);
    zip_t *zip = zip_open_from_source(target, ZIP_CREATE | ZIP_TRUNCATE, nullptr);
    zip_source_keep(target);
    for (const Entry &entry : entries) {
        const zip_flags_t encoding = entry.marksUtf8 ? ZIP_FL_ENC_UTF_8 : ZIP_FL_ENC_CP437;
        zip_int64_t index = 0;
        if (entry.name.endsWith('/')) {
            index = zip_dir_add(zip, entry.name.constData(), encoding);
        } else {
            zip_source_t *source = zip_source_buffer(zip, entry.data.constData(), entry.data.size(), 0);
            index = zip_file_add(zip, entry.name.constData(), source, encoding);
        }
        if (index < 0)
            qFatal("%s: %s", entry.name.constData(), zip_strerror(zip));
        if (entry.mode)
            zip_file_set_external_attributes(zip, index, 0, ZIP_OPSYS_UNIX, entry.mode << 16);
    }
    zip_close(zip);
    zip_source_open(target);
    zip_source_seek(target, 0, SEEK_END);
    QByteArray bytes(zip_source_tell(target), '\0');
    zip_source_seek(target, 0, SEEK_SET);
    zip_source_read(target, bytes.data(), bytes.size());
    zip_source_close(target);
    zip_source_free(target);
    return bytes;
}

/// A bundle whose tool is ours and behaves as \a behaviour says, see testtool.cpp.
inline QByteArray bundle(const QByteArray &behaviour)
{
    const QByteArray tool = contents(QStringLiteral(SPINBAR_TEST_TOOL));
    const QByteArray suffix = QByteArray(SPINBAR_TEST_TOOL).endsWith(".exe") ? ".exe" : "";
    return archive({{"avrdude" + suffix, behaviour == "no program" ? "no program" : tool},
                    {"avrdude.conf", behaviour},
                    {"spinbar.hex", ":00000001FF\n"}});
}

} // namespace BundleMaker
