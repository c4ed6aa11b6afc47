#include "ui/rungraph.h"

#include "core/spinbarrecord.h"
#include "detection/spinbardetection.h"

#include <cmath>

namespace {

constexpr double SpanStepSeconds = 5.0;
constexpr double MillisecondsPerSecond = 1000.0;
constexpr int RatLanes = 4;
constexpr int MouseLanes = 7;

} // namespace

RunGraph RunGraph::of(SpinbarRecord &record, const QList<SpinbarDetection *> &lanes)
{
    const double duration = record.durationSeconds();
    RunGraph graph{std::ceil(std::ceil(duration) / SpanStepSeconds) * SpanStepSeconds,
                   record.isRat() ? RatLanes : MouseLanes, record.normalizedItems()};
    for (const SpinbarDetection *lane : lanes) {
        if (!lane->isPresent())
            continue;
        ExperimentItem bar;
        bar.start = lane->startTime() - record.firstDeviceTime();
        bar.end = qint64(duration * MillisecondsPerSecond);
        bar.index = lane->index();
        graph.bars += bar;
    }
    return graph;
}
