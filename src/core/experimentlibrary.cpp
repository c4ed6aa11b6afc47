#include "core/experimentlibrary.h"

#include "core/experimentfile.h"
#include "core/recordslog.h"

#include "framework/common/fileutilities.h"
#include "framework/common/platform.h"
#include "framework/common/texthelper.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString withoutSlash(const QString &folder)
{
    return folder.endsWith('/'_L1) && folder.size() > 1 ? folder.chopped(1) : folder;
}

} // namespace

ExperimentLibrary::ExperimentLibrary(const QString &recordsFolder)
    : m_recordsFolder(FileUtilities::FolderSlash(recordsFolder))
{}

QStringList ExperimentLibrary::folders() const
{
    QStringList found = FileUtilities::getFilesOfType(m_recordsFolder, u"json"_s, true, true);
    for (QString &path : found)
        path.truncate(path.lastIndexOf('/'_L1) + 1);
    return found;
}

QList<ExperimentEntry> ExperimentLibrary::list() const
{
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    const QStringList found = folders();
    QList<ExperimentEntry> entries;
    entries.reserve(found.size());
    for (const QString &folder : found) {
        ExperimentData data;
        data.timestamp = now;
        ExperimentFile::read(ExperimentFile::pathIn(folder), data);
        const bool rat = data.items.isEmpty() || data.items.constFirst().rat;
        entries.append({folder, ExperimentFile::nameOf(folder), data.title, data.comment, data.timestamp,
                        int(data.items.size()), rat});
    }
    return entries;
}

QString ExperimentLibrary::newFolder(QDateTime when) const
{
    const auto folder = [&] { return m_recordsFolder + TextHelper::DateTimeFileString(when, true) + '/'_L1; };
    while (QFileInfo::exists(folder()))
        when = when.addMSecs(1);
    return folder();
}

ExperimentLibrary::RenameOutcome ExperimentLibrary::rename(const QString &folder, const QString &newName,
                                                           QString *newFolder) const
{
    const QString name = newName.trimmed();
    if (name.compare(ExperimentFile::nameOf(folder), Qt::CaseInsensitive) == 0)
        return RenameOutcome::Unchanged;
    if (name.isEmpty())
        return RenameOutcome::EmptyName;
    const QStringList known = folders();
    const bool taken = std::any_of(known.cbegin(), known.cend(), [&](const QString &other) {
        return name.compare(ExperimentFile::nameOf(other), Qt::CaseInsensitive) == 0;
    });
    if (taken)
        return RenameOutcome::NameTaken;
    const QString target = m_recordsFolder + name;
    if (!isUsableName(name) || !holds(folder) || !QFile::rename(withoutSlash(folder), target)) {
        qCWarning(recordsLog) << "Cannot rename" << folder << "to" << name;
        return RenameOutcome::Failed;
    }
    if (newFolder)
        *newFolder = FileUtilities::FolderSlash(target);
    return RenameOutcome::Renamed;
}

bool ExperimentLibrary::remove(const QString &folder) const
{
    const QString path = withoutSlash(folder);
    QFile file(path);
    QString reason;
    if (!holds(folder))
        reason = u"not under the records folder"_s;
    else if (!Platform::hasTrashFor(path))
        reason = u"no trash takes it"_s;
    else if (!file.moveToTrash())
        reason = file.errorString();
    else if (QFileInfo::exists(path))
        reason = u"it is still there"_s;
    if (reason.isEmpty())
        return true;
    qCWarning(recordsLog) << "Cannot move to the trash:" << folder << reason;
    return false;
}

bool ExperimentLibrary::isUsableName(const QString &name)
{
    static const QRegularExpression forbidden(u"[\\x{0}-\\x{1f}\\x{7f}|]"_s);
    static const QRegularExpression reserved(u"^(con|prn|aux|nul|com[0-9¹²³]|lpt[0-9¹²³])\\s*(\\.|$)"_s,
                                             QRegularExpression::CaseInsensitiveOption);
    // A name with a dot in front is that of a hidden folder, which no list shows.
    return !name.isEmpty() && name == name.trimmed() && !name.startsWith('.'_L1) && !name.endsWith('.'_L1)
           && FileUtilities::acceptableFileName(name) && !name.contains(forbidden)
           && !name.contains(reserved);
}

/// The records folder itself is no experiment, even if a file lies in it.
bool ExperimentLibrary::holds(const QString &folder) const
{
    const QString records = QFileInfo(m_recordsFolder).canonicalFilePath();
    const QString canonical = QFileInfo(withoutSlash(folder)).canonicalFilePath();
    return !records.isEmpty() && canonical.startsWith(FileUtilities::FolderSlash(records));
}
