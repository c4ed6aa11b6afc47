#pragma once

#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

/// What a list shows of one experiment.
struct ExperimentEntry
{
    QString folder; ///< With a trailing "/".
    QString name;
    QString title;
    QString comment;
    qint64 timestamp = 0; ///< ms since the epoch; the moment of listing if the file does not tell.
    int items = 0;
    bool rat = true;

    /// The identity of the experiment.
    QString path() const { return folder + QStringLiteral("experiment.json"); }
};

/// The experiments under one records folder.
class ExperimentLibrary
{
public:
    enum class RenameOutcome {
        Renamed,
        Unchanged, ///< The same name but for case.
        EmptyName,
        NameTaken, ///< By another experiment, in any case.
        Failed,    ///< Refused by the file system, or a name that would leave the folder or not be listed.
    };

    explicit ExperimentLibrary(const QString &recordsFolder);

    QString recordsFolder() const { return m_recordsFolder; }

    /// The folder of each file with the suffix "json", in the order of the walk: files by name, then
    /// sub-folders by name. Symbolic links to folders are not followed. A folder with two such files comes
    /// twice.
    QStringList folders() const;
    QList<ExperimentEntry> list() const;

    /// Where a recording begun at \a when belongs: its date and time, moved on by milliseconds as long as
    /// there is a folder of that name, since a clock that is set back shows the same moment twice.
    QString newFolder(QDateTime when) const;

    /// \a folder becomes recordsFolder() + \a newName; \a newFolder, if given, receives it.
    RenameOutcome rename(const QString &folder, const QString &newName, QString *newFolder = nullptr) const;

    /// Moves the whole folder to the trash. False, with the folder left in its place, if that can't be done
    /// or it does not lie under the records folder.
    bool remove(const QString &folder) const;

    /// Whether an experiment can have this name on every system and is listed under it.
    static bool isUsableName(const QString &name);

private:
    bool holds(const QString &folder) const;

    QString m_recordsFolder;
};
