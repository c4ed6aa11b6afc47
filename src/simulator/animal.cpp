#include "simulator/animal.h"

namespace {

constexpr double StepSeconds = 0.2;

/// How often things happen, a second.
constexpr double StepsOnRate = 0.25;
constexpr double SlipRateAtRest = 0.02;
constexpr double SlipRateSlope = 0.10;
constexpr double SlipRateCurve = 0.48;

/// A running animal leaves its sensor's sight for a moment, a standing one may turn around.
constexpr double BlinkProbability = 0.02;
constexpr double VisibleWhileUnsteady = 0.6;
constexpr double FallProbabilityAtRest = 0.3;
constexpr double FallProbabilitySlope = 0.4;

/// Durations in steps. One who has fallen stays away for longer than any usual wait for a fall.
constexpr int SteppingOnShortest = 1;
constexpr int SteppingOnLongest = 4;
constexpr int SlippingShortest = 1;
constexpr int SlippingLongest = 5;
constexpr int FallenShortest = 20;
constexpr int FallenLongest = 60;

} // namespace

void Animal::step(double effort)
{
    switch (m_state) {
    case State::Away:
        if (happens(StepsOnRate * StepSeconds))
            enter(State::SteppingOn, drawn(SteppingOnShortest, SteppingOnLongest));
        break;
    case State::SteppingOn:
        m_covers = happens(VisibleWhileUnsteady);
        if (--m_stepsLeft <= 0)
            enter(State::Running, 0);
        break;
    case State::Running:
        stepRunning(effort);
        break;
    case State::Slipping:
        stepSlipping(effort);
        break;
    case State::Fallen:
        if (--m_stepsLeft <= 0)
            enter(State::Away, 0);
        break;
    }
}

void Animal::leave()
{
    enter(State::Away, 0);
}

void Animal::enter(State state, int steps)
{
    m_state = state;
    m_stepsLeft = steps;
    m_covers = state == State::Running;
}

void Animal::stepRunning(double effort)
{
    m_covers = !happens(BlinkProbability);
    const double slipRate = SlipRateAtRest + effort * (SlipRateSlope + effort * SlipRateCurve);
    if (happens(slipRate * StepSeconds))
        enter(State::Slipping, drawn(SlippingShortest, SlippingLongest));
}

void Animal::stepSlipping(double effort)
{
    m_covers = happens(VisibleWhileUnsteady);
    if (--m_stepsLeft > 0)
        return;
    if (happens(FallProbabilityAtRest + effort * FallProbabilitySlope))
        enter(State::Fallen, drawn(FallenShortest, FallenLongest));
    else
        enter(State::Running, 0);
}

bool Animal::happens(double probability)
{
    // The library's distributions differ between its makers; the generator itself does not.
    return m_random() < probability * 4294967296.0;
}

int Animal::drawn(int lowest, int highest)
{
    return lowest + int(m_random() % quint32(highest - lowest + 1));
}
