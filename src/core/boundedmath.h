#pragma once

#include <QtGlobal>

#include <cmath>
#include <limits>

/// Arithmetic on device times and counters. They may be any 64-bit number that a line or a file held, so
/// results stop at the ends of the range instead of overflowing.
namespace Bounded {

inline constexpr qint64 Lowest = std::numeric_limits<qint64>::min();
inline constexpr qint64 Highest = std::numeric_limits<qint64>::max();

constexpr qint64 add(qint64 a, qint64 b)
{
    if (b > 0 && a > Highest - b)
        return Highest;
    if (b < 0 && a < Lowest - b)
        return Lowest;
    return a + b;
}

constexpr qint64 subtract(qint64 a, qint64 b)
{
    if (b < 0 && a > Highest + b)
        return Highest;
    if (b > 0 && a < Lowest + b)
        return Lowest;
    return a - b;
}

/// |a - b|, which always fits the unsigned type.
constexpr quint64 distance(qint64 a, qint64 b)
{
    return a > b ? quint64(a) - quint64(b) : quint64(b) - quint64(a);
}

/// a - b with its sign, of any size.
constexpr double difference(qint64 a, qint64 b)
{
    const auto size = double(distance(a, b));
    return a < b ? -size : size;
}

/// Truncates; not-a-number is 0.
inline qint64 toInteger(double value)
{
    constexpr double Limit = 9223372036854775808.0; // 2^63
    if (std::isnan(value))
        return 0;
    if (value >= Limit)
        return Highest;
    return value < -Limit ? Lowest : static_cast<qint64>(value);
}

} // namespace Bounded
