#pragma once

#include <functional>

/// Called behind each step of long work; false means that the work is to end and leave nothing behind. An
/// empty function never ends it.
using WorkStep = std::function<bool()>;

inline bool goesOn(const WorkStep &step)
{
    return !step || step();
}
