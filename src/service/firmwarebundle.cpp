#include "service/firmwarebundle.h"

#include "service/servicelog.h"

#include "framework/common/fileutilities.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace {

constexpr int FirstFolderNumber = 1000;
constexpr int EndOfFolderNumbers = 9999;
// A number may be taken by a folder that is not ours.
constexpr int FolderTries = 20;
// What is packed is hardly ever larger than what it unpacks to.
constexpr qint64 MaxBundleBytes = BundleArchive::MaxUnpackedBytes;
constexpr qint64 BytesPerMegabyte = qint64(1024) * 1024;

bool readWhole(const QString &path, QByteArray &bytes)
{
    QFile file(path);
    // Only a plain file has an end that is sure to come.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return false;
    bytes = file.read(MaxBundleBytes + 1);
    return true;
}

} // namespace

FirmwareBundle::FirmwareBundle(const FirmwareTarget &target)
    : m_target(target)
{}

FirmwareBundle::~FirmwareBundle()
{
    clear();
}

void FirmwareBundle::clear()
{
    if (!m_folder.isEmpty() && !FileUtilities::clearFolder(m_folder, true))
        qCWarning(serviceLog) << "Cannot remove" << QDir(m_folder).absolutePath();
    m_folder.clear();
    m_files.clear();
    m_problem.clear();
    m_path.clear();
}

bool FirmwareBundle::open(const QString &path)
{
    clear();
    QByteArray bytes;
    if (!readWhole(path, bytes))
        return false;
    m_path = path;
    BundleProblem problem;
    if (bytes.size() > MaxBundleBytes)
        problem = {BundleProblem::Kind::TooLarge, path};
    else if (!createFolder())
        problem = {BundleProblem::Kind::CannotWrite, QDir::currentPath()};
    else
        problem = BundleArchive(bytes).unpack(m_folder);
    if (problem.kind == BundleProblem::Kind::None) {
        findFiles();
        m_problem = missingFiles();
    } else {
        const QString description = describe(problem);
        clear();
        m_path = path;
        m_problem = description;
    }
    qCDebug(serviceLog) << "FIRMS" << m_files.size();
    if (!m_problem.isEmpty())
        qCInfo(serviceLog) << m_problem;
    return true;
}

bool FirmwareBundle::isValid() const
{
    return !m_folder.isEmpty() && m_files.size() == m_target.expectedFiles(m_folder).size();
}

QString FirmwareBundle::problem() const
{
    return m_problem;
}

bool FirmwareBundle::createFolder()
{
    for (int i = 0; i < FolderTries; ++i) {
        const int number = QRandomGenerator::global()->bounded(FirstFolderNumber, EndOfFolderNumbers);
        const QString folder = u"firmware-%1"_s.arg(number);
        if (!QDir().mkdir(folder))
            continue;
        m_folder = folder;
        qCDebug(serviceLog) << QDir(folder).absolutePath();
        return true;
    }
    return false;
}

void FirmwareBundle::findFiles()
{
    QStringList paths;
    for (const QString &name : FileUtilities::getFilesOfTypes(m_folder, m_target.fileTypes(), false, false))
        paths += m_folder + u'/' + name;
    const QString tool = m_target.program(m_folder);
    if (m_target.hasOwnTool() && QFileInfo(tool).isFile()) {
        // An archive made on Windows doesn't tell that it may be run.
        QFile::setPermissions(tool, QFile::permissions(tool) | QFile::ExeOwner);
        if (!paths.contains(tool))
            paths += tool;
    }
    m_files = m_target.findFiles(m_folder, paths);
}

QString FirmwareBundle::missingFiles() const
{
    QStringList missing;
    for (const ExpectedFile &file : m_target.expectedFiles(m_folder)) {
        if (!m_files.contains(file.role))
            missing += file.wholePath ? QFileInfo(file.part).fileName() : file.part;
    }
    return missing.isEmpty() ? QString() : tr("Missing in the bundle: %1").arg(missing.join(", "_L1));
}

QString FirmwareBundle::describe(const BundleProblem &problem) const
{
    using Kind = BundleProblem::Kind;
    switch (problem.kind) {
    case Kind::None:
        break;
    case Kind::NotAnArchive:
        return tr("The file is not a zip archive or is cut off");
    case Kind::ForbiddenEntry:
        return tr("The bundle holds an entry that is not allowed: %1").arg(problem.detail);
    case Kind::TooManyEntries:
        return tr("The bundle holds more than %1 entries").arg(BundleArchive::MaxEntries);
    case Kind::TooLarge:
        return tr("The bundle is larger than %1 MB when unpacked")
            .arg(BundleArchive::MaxUnpackedBytes / BytesPerMegabyte);
    case Kind::Damaged:
        return tr("The bundle is damaged: %1").arg(problem.detail);
    case Kind::CannotWrite:
        return tr("The bundle cannot be unpacked: %1").arg(problem.detail);
    }
    return {};
}
