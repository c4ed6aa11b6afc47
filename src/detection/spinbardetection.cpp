#include "detection/spinbardetection.h"

#include <QtNumeric>

#include <limits>

namespace {

constexpr double MotorRotationsPerDrumRotation = 9.487179487179487;
constexpr qint64 SamplePeriodMs = 200;
constexpr double SamplesPerSecond = 5.0;
constexpr int CoveredSamplesForPresence = 3;
// Below the 40 that an empty lane reads.
constexpr int DefaultThreshold = 34;
constexpr int MinThreshold = 1;
constexpr int MaxThreshold = 49;

double s_trailSeconds = 3.0;
double s_minimumSeconds = 5.0;

// Clock and counters come off the wire and may be anything.
qint64 difference(qint64 a, qint64 b)
{
    qint64 result = 0;
    if (qSubOverflow(a, b, &result))
        return a < b ? std::numeric_limits<qint64>::min() : std::numeric_limits<qint64>::max();
    return result;
}

} // namespace

SpinbarDetection::SpinbarDetection(int index, bool isRat, QObject *parent)
    : QObject(parent)
    , m_isRat(isRat)
    , m_index(index)
    , m_threshold(DefaultThreshold)
{}

double SpinbarDetection::trailSeconds()
{
    return s_trailSeconds;
}

void SpinbarDetection::setTrailSeconds(double seconds)
{
    s_trailSeconds = seconds;
}

double SpinbarDetection::minimumSeconds()
{
    return s_minimumSeconds;
}

void SpinbarDetection::setMinimumSeconds(double seconds)
{
    s_minimumSeconds = seconds;
}

void SpinbarDetection::update(int value, qint64 rotationCounter, qint64 clock)
{
    m_lastClock = clock;
    m_lastCounter = rotationCounter;
    m_lastValue = value;
    const bool covered = value < m_threshold;
    if (isPresent())
        updatePresent(covered);
    else
        updateAbsent(covered);
    emit calcsChanged();
}

void SpinbarDetection::updatePresent(bool covered)
{
    if (covered) {
        m_highCount = 0;
        return;
    }
    ++m_highCount;
    if (!(m_highCount >= s_trailSeconds * SamplesPerSecond))
        return;
    const qint64 counted = rotations();
    const qint64 end = difference(m_lastClock, m_highCount * SamplePeriodMs);
    emit lost(m_startTime, end, double(counted) / MotorRotationsPerDrumRotation, m_index);
    reset();
    // The high count stays: a run that follows may thus end with its first uncovered sample.
}

void SpinbarDetection::updateAbsent(bool covered)
{
    if (!covered) {
        m_lowCount = 0;
        return;
    }
    ++m_lowCount;
    if (m_lowCount < CoveredSamplesForPresence)
        return;
    m_startCounter = m_lastCounter;
    m_startTime = difference(m_lastClock, m_lowCount * SamplePeriodMs);
    emit found();
    emit presentChanged(true);
}

void SpinbarDetection::reset()
{
    m_startTime = 0;
    m_startCounter = 0;
    m_lowCount = 0;
}

bool SpinbarDetection::isPresent() const
{
    return m_startTime > 0;
}

qint64 SpinbarDetection::elapsed() const
{
    return isPresent() ? difference(m_lastClock, m_startTime) : -1;
}

qint64 SpinbarDetection::rotations() const
{
    const qint64 counted = difference(m_lastCounter, m_startCounter);
    return isPresent() && counted > 0 ? counted : -1;
}

int SpinbarDetection::threshold() const
{
    return m_threshold;
}

void SpinbarDetection::setThreshold(int threshold)
{
    if (isThreshold(threshold))
        m_threshold = threshold;
}

bool SpinbarDetection::isThreshold(int value)
{
    return value >= MinThreshold && value <= MaxThreshold;
}

bool SpinbarDetection::isRat() const
{
    return m_isRat;
}

int SpinbarDetection::index() const
{
    return m_index;
}

qint64 SpinbarDetection::startTime() const
{
    return m_startTime;
}

int SpinbarDetection::lastValue() const
{
    return m_lastValue;
}

qint64 SpinbarDetection::lastClock() const
{
    return m_lastClock;
}
