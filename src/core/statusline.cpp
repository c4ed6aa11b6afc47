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

constexpr std::array<qint8, 256> digitValues()
{
    std::array<qint8, 256> values{};
    values.fill(-1);
    for (int i = 0; i < 10; ++i)
        values[std::size_t('0' + i)] = qint8(i);
    for (int i = 0; i < 6; ++i)
        values[std::size_t('a' + i)] = values[std::size_t('A' + i)] = qint8(10 + i);
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

bool readNumber(const char *begin, const char *end, qint64 &number)
{
    static constexpr auto Digits = digitValues();
    if (begin == end || end - begin > MaxPlainDigits)
        return readAnyNumber(begin, end, number);
    qint64 value = 0;
    for (const char *at = begin; at != end; ++at) {
        const qint8 digit = Digits[quint8(*at)];
        if (digit < 0)
            return readAnyNumber(begin, end, number);
        value = value * Hexadecimal + digit;
    }
    number = value;
    return true;
}

const char *lastSeparator(const char *begin, const char *end)
{
    while (end != begin) {
        if (*--end == ';')
            return end;
    }
    return nullptr;
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
    const char *beforeTime = lastSeparator(begin, end);
    const char *beforeCounter = beforeTime ? lastSeparator(begin, beforeTime) : nullptr;
    // The two found, and one field more than there are separators.
    constexpr qint64 OtherSeparators = MinStoredFields - 3;
    if (!beforeCounter || cutSeparators + std::count(begin, beforeCounter, ';') < OtherSeparators
        || !readNumber(beforeTime + 1, end, sample.timeMs))
        return false;
    if (!readNumber(beforeCounter + 1, beforeTime, sample.counter))
        sample.counter = 0;
    return true;
}
