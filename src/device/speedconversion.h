#pragma once

/// The arithmetic of speeds. Units are the values of CurlySpinbar::SpeedDimension.
namespace SpeedConversion {

/// Motor rotations per second; the instrument takes no more.
inline constexpr double MaxMotorSpeed = 4.743589743589744;

/// A unit that is none counts as motor rotations per second in \a from and gives \a value as it is in \a to.
double convert(double value, int from, int to, bool isMouse);

} // namespace SpeedConversion
