#pragma once

#include <QtGlobal>

#include <chrono>

/// The host's clock as this process sees it. It can be set like by an operator or a time service; the
/// machine's own clock, timers and the instrument's process go on undisturbed.
namespace HostClock {

/// False if the C library's clock is read past this one, so that nothing would be tested.
bool canBeMoved();

void jump(std::chrono::milliseconds by);
/// Back to the machine's time.
void setRight();
std::chrono::milliseconds offset();

/// Shows one moment until setRight(), as if it were there a second time.
void holdAt(qint64 msSinceEpoch);

} // namespace HostClock
