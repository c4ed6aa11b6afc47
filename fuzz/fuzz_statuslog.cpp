#include "fuzztarget.h"

#include "core/detectionreplay.h"
#include "core/spinbarrecord.h"

using namespace Qt::StringLiterals;
using FuzzTarget::require;

// "status.log" as it may lie in a folder: counters, speeds, and the detection run anew.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString path = FuzzTarget::scratchFile(u"status.log"_s, FuzzTarget::bytes(data, size));
    StatusCounters counters;
    require(StatusLog::read(path, counters), "a log that is there is read");
    const auto &samples = counters.samples();
    for (std::size_t i = 1; i < samples.size(); ++i)
        require(samples[i - 1].timeMs < samples[i].timeMs, "times ascend, each once");

    SpinbarRecord record(FuzzTarget::scratchFolder(), {});
    require(record.durationSeconds() >= 0, "no duration is negative");
    const QList<double> speeds = record.speeds();
    require(speeds.isEmpty() || std::size_t(speeds.size()) + 1 == samples.size(), "one speed a step");
    if (!samples.empty())
        record.speedBetween(samples.front().timeMs, samples.back().timeMs);
    DetectionReplay::run(path, {size % 2 == 1, {}, 2.0});
    return 0;
}
