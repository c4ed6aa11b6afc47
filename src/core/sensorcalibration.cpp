#include "core/sensorcalibration.h"

#include "core/spinbarsettings.h"
#include "detection/lanethresholds.h"
#include "detection/spinbardetection.h"
#include "device/curlyspinbar.h"

bool SensorCalibration::apply(const SpinbarSettings &settings, CurlySpinbar &device)
{
    const bool mice = device.rodentMode() == CurlySpinbarDevice::Mice;
    const QList<SpinbarDetection *> &lanes = device.detectors();
    const QList<int> thresholds = LaneThresholds::fromText(
        mice ? settings.getCalibrationMice() : settings.getCalibrationRats(), int(lanes.size()));
    if (thresholds.isEmpty())
        return false;
    for (qsizetype lane = 0; lane < lanes.size(); ++lane)
        lanes.at(lane)->setThreshold(thresholds.at(lane));
    return true;
}
