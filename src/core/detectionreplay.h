#pragma once

#include "core/experimentitem.h"

#include <QList>
#include <QString>

#include <optional>

/// Presence and fall detection run anew over a recorded "status.log".
namespace DetectionReplay {

struct Options
{
    bool mice = false;
    /// One per lane; empty means the detectors' own.
    QList<int> thresholds;
    double trailSeconds = 0;
};

/// The stays in the order of detection, those of animals still on the drum at the end as a stop would flush
/// them. Times are the detectors' own. None if the file can't be read.
std::optional<QList<ExperimentItem>> run(const QString &path, const Options &options);

} // namespace DetectionReplay
