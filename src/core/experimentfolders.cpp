#include "core/experimentfolders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QList>

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace {

QString nameOf(const fs::directory_entry &entry)
{
#ifdef Q_OS_WIN
    return QString::fromStdWString(entry.path().filename().native());
#else
    return QFile::decodeName(entry.path().filename().c_str());
#endif
}

bool isFile(const fs::directory_entry &entry)
{
    std::error_code error;
    return entry.is_regular_file(error);
}

bool isFolder(const fs::directory_entry &entry)
{
    std::error_code error;
    return !entry.is_symlink(error) && entry.is_directory(error);
}

// The types of the entries come with the listing, so nothing but the folder itself is asked of the system.
void append(const fs::path &folder, const QString &path, QStringList &found)
{
    QList<std::pair<QString, QString>> subfolders;
    std::error_code error;
    for (fs::directory_iterator at(folder, error); !error && at != fs::directory_iterator();
         at.increment(error)) {
        const QString name = nameOf(*at);
        if (name.startsWith('.'_L1))
            continue;
        if (name.endsWith(".json"_L1, Qt::CaseInsensitive) && isFile(*at))
            found.append(path);
        else if (isFolder(*at))
            subfolders.append({name.toLower(), name});
    }
    std::sort(subfolders.begin(), subfolders.end());
    for (const auto &[order, name] : std::as_const(subfolders)) {
        const QString subfolder = path + name + '/'_L1;
        append(QFileInfo(subfolder).filesystemFilePath(), subfolder, found);
    }
}

} // namespace

QStringList experimentFolders(const QString &recordsFolder)
{
    QStringList found;
    const QDir dir(recordsFolder);
    append(dir.filesystemPath(), dir.absolutePath() + '/'_L1, found);
    return found;
}
