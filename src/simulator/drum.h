#pragma once

#include <QtGlobal>

/// The motor and the drum on its shaft: what is commanded comes about with a finite acceleration, and every
/// turn is counted. Speeds are motor rotations per second.
class Drum
{
public:
    /// The fastest that may be commanded; half a drum rotation a second.
    static constexpr double MaxSpeed = 4.743589743589744;
    /// What the motor gains and loses in one second with coefficients of 1: two seconds to full speed.
    static constexpr double Acceleration = 2.4;
    static constexpr double Deceleration = 4.8;

    /// How the maker trimmed this motor: a multiplier each, 1 for a motor as designed.
    struct Trim
    {
        double speed = 1.0;
        double acceleration = 1.0;
        double deceleration = 1.0;
    };

    /// Takes effect with the next advance(). Outside 0 to MaxSpeed the nearest limit counts.
    void command(double motorSpeed);
    void setTrim(const Trim &trim) { m_trim = trim; }
    /// At rest at once, commanded to stay so.
    void halt();

    /// Lets time pass; without power the motor is slowed down as if 0 were commanded.
    void advance(double seconds, bool powered);

    double commandedSpeed() const { return m_commanded; }
    double speed() const { return m_speed; }
    /// Thousandths of a motor rotation since the start; never falls.
    qint64 counter() const { return qint64(m_rotations * 1000.0); }

private:
    Trim m_trim;
    double m_commanded = 0.0;
    double m_speed = 0.0;
    double m_rotations = 0.0;
};
