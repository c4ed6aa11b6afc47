#pragma once

class CurlySpinbar;
class SpinbarSettings;

namespace SensorCalibration {

/// Gives the lanes of the present rodent mode their thresholds from the settings. False, with the thresholds
/// left as they were, if this mode has not been calibrated.
bool apply(const SpinbarSettings &settings, CurlySpinbar &device);

} // namespace SensorCalibration
