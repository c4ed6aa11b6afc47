#include "fuzztarget.h"

#include "core/experimentfile.h"
#include "core/spinbarrecord.h"

using namespace Qt::StringLiterals;
using FuzzTarget::require;

// "experiment.json" as it may lie in a folder: read, shown as tables, and written and read once more.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString path = FuzzTarget::scratchFile(u"experiment.json"_s, FuzzTarget::bytes(data, size));
    ExperimentData first;
    if (!ExperimentFile::read(path, first))
        return 0;
    require(ExperimentFile::write(path, ExperimentFile::toJson(first, u"name"_s)), "it can be written");
    ExperimentData second;
    require(ExperimentFile::read(path, second), "what was written can be read");
    require(second.items == first.items, "no row changes by being read and written");
    require(second.timestamp == first.timestamp && second.comment == first.comment, "nor does the head");

    SpinbarRecord record(FuzzTarget::scratchFolder(), {});
    require(record.load(), "the record reads what the file reader does");
    record.normalizedItems();
    record.experimentTable(false);
    SpinbarRecord::summaryTable({&record, &record}, false);
    return 0;
}
