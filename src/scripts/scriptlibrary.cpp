#include "scripts/scriptlibrary.h"

#include "framework/common/fileutilities.h"
#include "framework/common/platform.h"
#include "scripts/samplescripts.h"
#include "scripts/speedscript.h"

#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcLibrary, "spinbar.scripts.library")

namespace {

const QString Suffix = u"xml"_s;

/// A title with a separator would be a path and lead to a file outside the folder; one with a dot in front is
/// that of a hidden file, which no list shows.
bool isFileName(const QString &title)
{
    return QFileInfo(title).fileName() == title && !title.startsWith('.'_L1) && !title.contains(QChar::Null);
}

ScriptLibrary::Outcome logged(ScriptLibrary::Outcome outcome, const QString &path)
{
    qCWarning(lcLibrary) << outcome << path;
    return outcome;
}

/// Leaves a file that is there already alone, and none behind that is not whole.
bool writeNewFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (content.isEmpty() || !file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return false;
    const bool whole = FileUtilities::writeAll(file, content) && file.flush();
    file.close();
    if (!whole)
        file.remove();
    return whole;
}

} // namespace

ScriptLibrary::ScriptLibrary(const QString &folder)
    : m_folder(FileUtilities::FolderSlash(folder))
{}

QStringList ScriptLibrary::titles() const
{
    QStringList titles = FileUtilities::getFilesOfType(m_folder, Suffix, false, false);
    for (QString &title : titles)
        title = QFileInfo(title).completeBaseName();
    return titles;
}

QString ScriptLibrary::findFile(const QString &title) const
{
    const QStringList files = FileUtilities::getFilesOfType(m_folder, Suffix, false, true);
    for (const QString &file : files) {
        if (QFileInfo(file).completeBaseName() == title)
            return file;
    }
    return {};
}

QString ScriptLibrary::filePath(const QString &title) const
{
    return m_folder + title + '.'_L1 + Suffix;
}

std::unique_ptr<SpeedScript> ScriptLibrary::load(const QString &title) const
{
    const QString file = findFile(title);
    if (file.isEmpty())
        return nullptr;
    auto script = std::make_unique<SpeedScript>(file);
    script->reload();
    script->parsePoints();
    return script;
}

int ScriptLibrary::indexToSelect(const QStringList &titles, const QString &remembered)
{
    for (qsizetype i = titles.size() - 1; i >= 0; --i) {
        if (titles[i].compare(remembered, Qt::CaseInsensitive) == 0)
            return static_cast<int>(i);
    }
    return titles.isEmpty() ? -1 : 0;
}

ScriptLibrary::Outcome ScriptLibrary::checkTitle(const QString &title, bool mustBeFree) const
{
    const QString trimmed = title.trimmed();
    if (trimmed.isEmpty())
        return Outcome::EmptyTitle;
    return mustBeFree && titles().contains(trimmed) ? Outcome::TitleTaken : Outcome::Done;
}

ScriptLibrary::Outcome ScriptLibrary::create(const QString &title) const
{
    if (const Outcome problem = checkTitle(title, true); problem != Outcome::Done)
        return problem;
    const QString trimmed = title.trimmed();
    const QString path = filePath(trimmed);
    if (!isFileName(trimmed))
        return logged(Outcome::CannotSave, path);
    SpeedScript(path).save();
    return QFileInfo::exists(path) ? Outcome::Done : logged(Outcome::CannotSave, path);
}

ScriptLibrary::Outcome ScriptLibrary::clone(const QString &from, const QString &title) const
{
    if (const Outcome problem = checkTitle(title, true); problem != Outcome::Done)
        return problem;
    const QString trimmed = title.trimmed();
    const QString path = filePath(trimmed);
    const bool copied = isFileName(trimmed) && QFile::copy(filePath(from), path);
    return copied ? Outcome::Done : logged(Outcome::CannotCopy, path);
}

ScriptLibrary::Outcome ScriptLibrary::rename(const QString &from, const QString &title) const
{
    if (const Outcome problem = checkTitle(title, false); problem != Outcome::Done)
        return problem;
    const QString trimmed = title.trimmed();
    if (trimmed == from)
        return Outcome::Unchanged;
    const QString path = filePath(trimmed);
    const bool renamed = isFileName(trimmed) && QFile::rename(filePath(from), path);
    return renamed ? Outcome::Done : logged(Outcome::CannotRename, path);
}

ScriptLibrary::Outcome ScriptLibrary::remove(const QString &title) const
{
    const QString file = findFile(title);
    const bool removed = !file.isEmpty() && Platform::hasTrashFor(file) && QFile::moveToTrash(file);
    return removed ? Outcome::Done : logged(Outcome::CannotRemove, file);
}

ScriptLibrary::Outcome ScriptLibrary::addSamples() const
{
    Outcome outcome = Outcome::Done;
    FileUtilities::createIfNotExists(m_folder);
    const QStringList taken = titles();
    for (const SampleScript &sample : sampleScripts()) {
        if (taken.contains(sample.title, Qt::CaseInsensitive))
            continue;
        QFile content(sample.path);
        const bool added =
            content.open(QIODevice::ReadOnly) && writeNewFile(filePath(sample.title), content.readAll());
        if (!added)
            outcome = logged(Outcome::CannotAddSamples, filePath(sample.title));
    }
    return outcome;
}
