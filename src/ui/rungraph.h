#pragma once

#include "core/experimentitem.h"

#include <QList>

class SpinbarDetection;
class SpinbarRecord;

/// What the graph shows of a recording in progress.
struct RunGraph
{
    /// The recording's duration, rounded up to whole 5 s.
    double spanSeconds = 0;
    int laneCount = 0;
    /// The runs that are over, then those that still last; in ms from the recording's first status line.
    QList<ExperimentItem> bars;

    static RunGraph of(SpinbarRecord &record, const QList<SpinbarDetection *> &lanes);
};
