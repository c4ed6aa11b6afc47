#include "fuzztarget.h"

#include "service/bundlearchive.h"

#include <QDir>
#include <QDirIterator>

using namespace Qt::StringLiterals;
using FuzzTarget::require;

// A firmware bundle: whatever it holds stays inside the folder that it is unpacked into.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    QDir outer(FuzzTarget::scratchFolder() + u"outer"_s);
    const QString folder = outer.filePath(u"bundle"_s);
    require(QDir().mkpath(folder), "the folder can be made");
    BundleArchive archive(FuzzTarget::bytes(data, size));
    archive.unpack(folder);

    require(outer.entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System | QDir::Hidden)
                == QStringList{u"bundle"_s},
            "nothing is written beside the folder");
    QDirIterator entries(folder, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System | QDir::Hidden,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        entries.next();
        require(!entries.fileInfo().isSymbolicLink(), "no link is made");
    }
    require(outer.removeRecursively(), "what was unpacked can be removed");
    return 0;
}
