#include "core/statusline.h"

#include <QString>

#include <algorithm>
#include <array>

namespace {

constexpr int MinMessageFields = 5;
constexpr int MinStoredFields = 8;
constexpr int Hexadecimal = 16;

// So many digits fit a signed 64-bit number whatever they are.
constexpr int MaxPlainDigits = 15;
constexpr int BitsPerDigit = 4;

constexpr std::array<qint8, 256> digitValues()
{
    std::array<qint8, 256> values{};
    values.fill(-1);
    for (std::size_t i = 0; i < 10; ++i)
        values['0' + i] = qint8(i);
    for (std::size_t i = 0; i < 6; ++i)
        values['a' + i] = values['A' + i] = qint8(10 + i);
    return values;
}

// Results go out by reference here: an optional of a number costs a stalled load each time.
/// With blanks, signs, prefixes and more digits.
bool readAnyNumber(const char *begin, const char *end, qint64 &number)
{
    bool ok = false;
    number = QString::fromUtf8(begin, end - begin).trimmed().toLongLong(&ok, Hexadecimal);
    return ok;
}

/// The number of the last field before \a end, whose beginning becomes \a start. Backwards, so that each
/// digit is looked at once.
bool readLastNumber(const char *begin, const char *end, const char *&start, qint64 &number)
{
    static constexpr auto Digits = digitValues();
    const char *const stop = end - std::min<std::ptrdiff_t>(end - begin, MaxPlainDigits);
    const char *at = end;
    qint64 value = 0;
    int bits = 0;
    for (; at != stop; --at, bits += BitsPerDigit) {
        const qint8 digit = Digits[quint8(at[-1])];
        if (digit < 0)
            break;
        value |= qint64(digit) << bits;
    }
    start = at;
    if (at != end && at != begin && at[-1] == ';') {
        number = value;
        return true;
    }
    while (start != begin && start[-1] != ';')
        --start;
    return readAnyNumber(start, end, number);
}

} // namespace

std::optional<StatusSample> StatusLine::sampleOfMessage(QStringView message)
{
    if (message.count(u',') + 1 < MinMessageFields)
        return std::nullopt;
    const qsizetype beforeTime = message.lastIndexOf(u',');
    const qsizetype beforeCounter = message.first(beforeTime).lastIndexOf(u',');
    const QStringView counter = message.sliced(beforeCounter + 1, beforeTime - beforeCounter - 1);
    return StatusSample{message.sliced(beforeTime + 1).toLongLong(nullptr, Hexadecimal),
                        counter.toLongLong(nullptr, Hexadecimal)};
}

bool StatusLine::readStoredLine(const char *begin, const char *end, qint64 cutSeparators,
                                StatusSample &sample)
{
    while (end != begin && (end[-1] == '\r' || end[-1] == ' '))
        --end;
    const char *time = nullptr;
    const char *counter = nullptr;
    if (!readLastNumber(begin, end, time, sample.timeMs) || time == begin)
        return false;
    if (!readLastNumber(begin, time - 1, counter, sample.counter))
        sample.counter = 0;
    // All but that before the time, and one field more than there are separators.
    constexpr qint64 OtherSeparators = MinStoredFields - 2;
    return counter != begin && cutSeparators + std::count(begin, counter, ';') >= OtherSeparators;
}
