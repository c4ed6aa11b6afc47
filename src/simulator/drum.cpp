#include "simulator/drum.h"

#include <algorithm>
#include <cmath>

void Drum::command(double motorSpeed)
{
    m_commanded = std::clamp(motorSpeed, 0.0, MaxSpeed);
}

void Drum::halt()
{
    m_commanded = 0.0;
    m_speed = 0.0;
}

void Drum::advance(double seconds, bool powered)
{
    const double target = powered ? m_commanded * m_trim.speed : 0.0;
    const double change = target - m_speed;
    const double rate = change > 0 ? Acceleration * m_trim.acceleration : -Deceleration * m_trim.deceleration;
    const double needed = change / rate;
    const double ramp = std::min(needed, seconds);
    const double reached = needed <= seconds ? target : m_speed + rate * seconds;
    // Under the ramp the mean of both speeds, then the rest of the time at the new one.
    m_rotations += (m_speed + reached) / 2.0 * ramp + reached * (seconds - ramp);
    m_speed = reached;
}
