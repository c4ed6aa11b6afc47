#pragma once

#include "framework/common/platform.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

/// A file that a bundle has to hold.
struct ExpectedFile
{
    /// Of the file's path; for a tool without a suffix the whole path.
    QString part;
    QString role;
    bool wholePath = false;

    bool isMetBy(const QString &path) const;
};

/// The chip whose firmware is written, and the outside tool that writes it: which files it needs and how it
/// is called. Paths are relative to the folder in which the bundle's folder stands.
class FirmwareTarget
{
public:
    enum class Kind { Esp32 = 0, Avr = 1 };
    using Files = QMap<QString, QString>;

    /// A \a tool whose name begins with "self-" comes inside the bundle. Its ".exe" stands for the
    /// \a executableSuffix of the system.
    FirmwareTarget(Kind kind, const QString &tool,
                   const QString &executableSuffix = Platform::executableSuffix());

    /// In the order in which they are looked for.
    QList<ExpectedFile> expectedFiles(const QString &folder) const;
    /// Each expected file's role with the first of \a paths that meets it and is not taken yet.
    Files findFiles(const QString &folder, QStringList paths) const;

    /// What the names of those files end with, but for a tool without a suffix.
    QStringList fileTypes() const;

    bool hasOwnTool() const;
    QString program(const QString &folder) const;
    /// As they stand in the command line, with their quotes.
    QStringList arguments(const Files &files, const QString &port) const;
    QString commandLine(const QString &folder, const Files &files, const QString &port) const;

private:
    QString m_tool;
    QString m_suffix;
    Kind m_kind;
};
