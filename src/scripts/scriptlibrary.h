#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

class SpeedScript;

/// The scripts of one folder. A title is the base name of a file with the suffix "xml"; titles given are
/// trimmed.
class ScriptLibrary
{
    Q_GADGET

public:
    enum class Outcome {
        Done,
        EmptyTitle,
        TitleTaken,
        Unchanged,  ///< renaming to the same title
        CannotSave, ///< the file of a new script could not be written
        CannotCopy,
        CannotRename, ///< also when the new title is in use
        CannotRemove,
        CannotAddSamples, ///< at least one sample script could not be written
    };
    Q_ENUM(Outcome)

    explicit ScriptLibrary(const QString &folder);

    /// In the order of the folder's listing.
    QStringList titles() const;
    /// The file whose base name is exactly \a title, empty if there is none.
    QString findFile(const QString &title) const;
    /// Where a script of this title is written.
    QString filePath(const QString &title) const;
    /// Read from its file, with auto-save off; null if there is no such file.
    std::unique_ptr<SpeedScript> load(const QString &title) const;

    /// What to select: the last title that equals \a remembered but for case, else the first, else -1.
    static int indexToSelect(const QStringList &titles, const QString &remembered);

    /// EmptyTitle, TitleTaken (only if \a mustBeFree; case matters) or Done.
    Outcome checkTitle(const QString &title, bool mustBeFree) const;
    Outcome create(const QString &title) const;
    Outcome clone(const QString &from, const QString &title) const;
    Outcome rename(const QString &from, const QString &title) const;
    /// Into the system's trash.
    Outcome remove(const QString &title) const;
    /// Writes those sample scripts whose titles, whatever their case, are free.
    Outcome addSamples() const;

private:
    QString m_folder; // ends with "/"
};
