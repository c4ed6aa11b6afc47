#pragma once

#include <QString>
#include <QtGlobal>

/// One animal's stay on the drum: one row of an experiment.
struct ExperimentItem
{
    qint64 start = 0; ///< Device time, ms.
    qint64 end = 0;   ///< Device time at which the animal was lost, ms.
    int index = -1;   ///< Lane from 0; -1 if a stored row names none.
    /// Thousandths of a drum rotation; a row of the flush at a stop holds the raw counter difference.
    double rotations = 0.0;
    bool rat = false;
    QString title;

    bool operator==(const ExperimentItem &) const = default;
};
