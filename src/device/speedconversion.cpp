#include "device/speedconversion.h"

#include "device/curlyspinbar.h"

// The order of the operations decides the last digits of the results: it is part of the rules.

namespace {

constexpr double MotorPerDrum = 9.487179487179487;
constexpr double RatDrumMetres = 0.21991148575128552;
constexpr double MouseDrumMetres = 0.12566370614359174;

double toMotor(double value, int from, double circumference)
{
    switch (from) {
    case CurlySpinbar::Speed_RotationsPerSecond:
        return value * MotorPerDrum;
    case CurlySpinbar::Speed_RotationsPerMinute:
        return value * MotorPerDrum / 60;
    case CurlySpinbar::Speed_MetersPerSecond:
        return value * MotorPerDrum / circumference;
    case CurlySpinbar::Speed_CentimetersPerSecond:
        return value * MotorPerDrum / circumference / 100;
    case CurlySpinbar::Speed_KilometersPerHour:
        return value * MotorPerDrum / circumference * 0.2777777777777778;
    default:
        return value;
    }
}

} // namespace

double SpeedConversion::convert(double value, int from, int to, bool isMouse)
{
    if (from == to)
        return value;
    const double circumference = isMouse ? MouseDrumMetres : RatDrumMetres;
    const double motor = toMotor(value, from, circumference);
    switch (to) {
    case CurlySpinbar::Speed_Motor_RotationsPerSecond:
        return motor;
    case CurlySpinbar::Speed_RotationsPerSecond:
        return motor / MotorPerDrum;
    case CurlySpinbar::Speed_RotationsPerMinute:
        return motor / MotorPerDrum * 60;
    case CurlySpinbar::Speed_MetersPerSecond:
        return motor / MotorPerDrum * circumference;
    case CurlySpinbar::Speed_CentimetersPerSecond:
        return motor * 100 / MotorPerDrum * circumference;
    case CurlySpinbar::Speed_KilometersPerHour:
        return motor / MotorPerDrum * circumference * 3.6;
    default:
        return value;
    }
}
