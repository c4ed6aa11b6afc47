#include "soak/hostclock.h"

#include <QDateTime>
#include <QElapsedTimer>

#include <atomic>

#include <sys/syscall.h>
#include <sys/time.h>
#include <time.h>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

constexpr qint64 NsPerSecond = 1'000'000'000;
constexpr qint64 NsPerMs = 1'000'000;
constexpr qint64 NsPerMicrosecond = 1'000;

std::atomic<qint64> s_offsetNs = 0;
std::atomic<qint64> s_heldAtNs = 0; // 0: it goes on

int machineTime(clockid_t clock, timespec *time)
{
    return int(syscall(SYS_clock_gettime, clock, time));
}

qint64 shownNs()
{
    if (const qint64 held = s_heldAtNs)
        return held;
    timespec time{};
    machineTime(CLOCK_REALTIME, &time);
    return time.tv_sec * NsPerSecond + time.tv_nsec + s_offsetNs;
}

} // namespace

// The dynamic linker takes these before those of the C library, for Qt's calls too.
extern "C" {

int clock_gettime(clockid_t clock, timespec *time) noexcept
{
    if (clock != CLOCK_REALTIME && clock != CLOCK_REALTIME_COARSE)
        return machineTime(clock, time);
    const qint64 now = shownNs();
    time->tv_sec = now / NsPerSecond;
    time->tv_nsec = now % NsPerSecond;
    return 0;
}

int gettimeofday(timeval *time, void *) noexcept
{
    const qint64 now = shownNs();
    time->tv_sec = now / NsPerSecond;
    time->tv_usec = now % NsPerSecond / NsPerMicrosecond;
    return 0;
}

time_t time(time_t *seconds) noexcept
{
    const time_t now = shownNs() / NsPerSecond;
    if (seconds)
        *seconds = now;
    return now;
}

} // extern "C"

bool HostClock::canBeMoved()
{
    const qint64 before = QDateTime::currentMSecsSinceEpoch();
    QElapsedTimer steady;
    steady.start();
    jump(1h);
    const qint64 moved = QDateTime::currentMSecsSinceEpoch() - before;
    setRight();
    return moved >= std::chrono::milliseconds(1h).count() && steady.elapsed() < 1000;
}

void HostClock::jump(std::chrono::milliseconds by)
{
    s_offsetNs += by.count() * NsPerMs;
}

void HostClock::setRight()
{
    s_offsetNs = 0;
    s_heldAtNs = 0;
}

std::chrono::milliseconds HostClock::offset()
{
    return std::chrono::milliseconds(s_offsetNs / NsPerMs);
}

void HostClock::holdAt(qint64 msSinceEpoch)
{
    s_heldAtNs = msSinceEpoch * NsPerMs;
}
