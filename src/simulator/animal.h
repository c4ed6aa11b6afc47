#pragma once

#include <QtGlobal>

#include <random>

/// One lane's animal: it is put on the drum, finds its feet, runs, slips now and then, and falls. One step
/// is one status message. The same seed and the same speeds give the same life.
class Animal
{
public:
    enum class State { Away, SteppingOn, Running, Slipping, Fallen };

    explicit Animal(quint32 seed)
        : m_random(seed)
    {}

    /// \a effort is the drum's speed as a part of the fastest, 0 to 1: the higher, the sooner it falls.
    void step(double effort);
    void leave();

    State state() const { return m_state; }
    /// True while the lane's sensor sees it.
    bool covers() const { return m_covers; }

private:
    void enter(State state, int steps);
    void stepRunning(double effort);
    void stepSlipping(double effort);
    bool happens(double probability);
    int drawn(int lowest, int highest);

    std::mt19937 m_random;
    State m_state = State::Away;
    /// Steps left in a state that lasts a drawn time.
    int m_stepsLeft = 0;
    bool m_covers = false;
};
