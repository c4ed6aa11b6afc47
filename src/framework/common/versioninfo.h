#pragma once

#include <QMetaType>
#include <QString>

class QByteArray;

/// What the update service says of the newest version.
struct VersionInfo
{
    bool valid = false; ///< there is a newer version than the one that asked
    QString version;
    QString date; ///< as the service writes it
    bool critical = false;
    QString link; ///< where to download
    QString changelog;
    QString info;

    /// Not valid for anything but a JSON object; a key that is missing or of another type leaves its default.
    static VersionInfo fromJson(const QByteArray &reply);

    friend bool operator==(const VersionInfo &, const VersionInfo &) = default;
};

Q_DECLARE_METATYPE(VersionInfo)
