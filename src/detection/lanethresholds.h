#pragma once

#include <QList>
#include <QString>

namespace LaneThresholds {

/// The thresholds of all \a lanes, in lane order, from a calibration's text: decimal integers separated by
/// ";". What is not a number from 1 to 49 is dropped; unless exactly \a lanes are left, the text is worth
/// nothing and the result empty.
QList<int> fromText(const QString &text, int lanes);

} // namespace LaneThresholds
