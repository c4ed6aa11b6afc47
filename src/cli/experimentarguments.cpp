#include "cli/experimentarguments.h"
#include "cli/clitext.h"

#include "core/experimentfile.h"
#include "framework/common/fileutilities.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

// A record takes its folder in this form, and makes it if it is missing.
QString recordFolder(const QString &path)
{
    return FileUtilities::FolderSlash(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
}

bool isExperimentFolder(const QString &path)
{
    return QFileInfo(ExperimentFile::pathIn(recordFolder(path))).isFile();
}

// Empty if the word names no experiment.
QString experimentFolder(const CommandContext &context, const QString &word)
{
    const QFileInfo info(word);
    const QString ofFile = info.absolutePath();
    if (info.fileName() == "experiment.json"_L1 && info.isFile() && isExperimentFolder(ofFile))
        return recordFolder(ofFile);
    if (!word.isEmpty() && isExperimentFolder(word))
        return recordFolder(word);
    const QString underRecords = context.recordsFolder() + word;
    return !word.isEmpty() && isExperimentFolder(underRecords) ? recordFolder(underRecords) : QString();
}

} // namespace

Records loadExperiments(CommandContext &context, const QStringList &words)
{
    QStringList folders;
    for (const QString &word : words) {
        folders.append(experimentFolder(context, word));
        if (folders.constLast().isEmpty()) {
            failed(context, Cli::tr("'%1': no such experiment").arg(word));
            return {};
        }
        if (!QFileInfo(ExperimentFile::pathIn(folders.constLast())).isReadable()) {
            failed(context, Cli::tr("'%1': cannot be read").arg(word));
            return {};
        }
    }
    Records records;
    for (const QString &folder : std::as_const(folders)) {
        records.push_back(std::make_unique<SpinbarRecord>(folder, QDateTime::currentDateTime()));
        // A file that is no experiment shows as one without rows, as everywhere.
        records.back()->load();
    }
    return records;
}

QList<SpinbarRecord *> borrowed(const Records &records)
{
    QList<SpinbarRecord *> list;
    for (const auto &record : records)
        list.append(record.get());
    return list;
}
