#include "cli/experimentarguments.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

bool isExperimentFolder(const QString &path)
{
    return QFileInfo(QDir(path).filePath(u"experiment.json"_s)).isFile();
}

// Empty if the word names no experiment.
QString experimentFolder(const CommandContext &context, const QString &word)
{
    const QFileInfo info(word);
    if (info.fileName() == "experiment.json"_L1 && info.isFile())
        return info.absolutePath();
    if (!word.isEmpty() && isExperimentFolder(word))
        return info.absoluteFilePath();
    const QString underRecords = context.recordsFolder() + word;
    return !word.isEmpty() && isExperimentFolder(underRecords) ? QFileInfo(underRecords).absoluteFilePath()
                                                               : QString();
}

} // namespace

Records loadExperiments(CommandContext &context, const QStringList &words)
{
    QStringList folders;
    for (const QString &word : words) {
        folders.append(experimentFolder(context, word));
        if (folders.constLast().isEmpty()) {
            failed(context, u"'%1': no such experiment"_s.arg(word));
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
