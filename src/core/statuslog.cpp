#include "core/statuslog.h"

#include "core/recordslog.h"

#include <QByteArray>
#include <QFileInfo>
#include <QString>

#include <algorithm>
#include <array>
#include <cstring>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

constexpr int MinMessageFields = 5;
constexpr int MinStoredFields = 8;
constexpr int Hexadecimal = 16;
constexpr qsizetype ChunkBytes = 256 * 1024;
// What is kept of a line that goes on and on: enough for its last two fields.
constexpr qsizetype MaxHeldBytes = 64 * 1024;
// So many digits fit a signed 64-bit number whatever they are.
constexpr qsizetype MaxPlainDigits = 15;

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

std::optional<qint64> hexadecimal(const char *begin, const char *end)
{
    static constexpr auto Digits = digitValues();
    qint64 value = 0;
    const char *at = begin;
    for (; at != end && Digits[quint8(*at)] >= 0; ++at) {
        if (at - begin == MaxPlainDigits)
            break;
        value = value * Hexadecimal + Digits[quint8(*at)];
    }
    if (at == end && at != begin)
        return value;
    // Blanks, signs, prefixes and long numbers are rare enough to go the long way.
    bool ok = false;
    value = QString::fromUtf8(begin, end - begin).trimmed().toLongLong(&ok, Hexadecimal);
    return ok ? std::optional(value) : std::nullopt;
}

const char *lastSeparator(const char *begin, const char *end)
{
    const auto found = std::find(std::make_reverse_iterator(end), std::make_reverse_iterator(begin), ';');
    return found.base() == begin ? nullptr : found.base() - 1;
}

/// Fields are separated by ";"; \a cutSeparators stood in a part of the line that was not kept.
void takeLine(const char *begin, const char *end, qint64 cutSeparators, StatusCounters &counters)
{
    while (end != begin && (end[-1] == '\r' || end[-1] == ' '))
        --end;
    const char *beforeTime = lastSeparator(begin, end);
    const char *beforeCounter = beforeTime ? lastSeparator(begin, beforeTime) : nullptr;
    if (!beforeCounter)
        return;
    constexpr int SeparatorsOfLastTwo = 2;
    if (cutSeparators + std::count(begin, beforeCounter, ';') + SeparatorsOfLastTwo + 1 < MinStoredFields)
        return;
    if (const auto time = hexadecimal(beforeTime + 1, end))
        counters.insert(*time, hexadecimal(beforeCounter + 1, beforeTime).value_or(0));
}

} // namespace

std::optional<StatusSample> StatusLog::sampleOfMessage(QStringView line)
{
    if (line.count(u',') + 1 < MinMessageFields)
        return std::nullopt;
    const qsizetype beforeTime = line.lastIndexOf(u',');
    const qsizetype beforeCounter = line.first(beforeTime).lastIndexOf(u',');
    const QStringView counter = line.sliced(beforeCounter + 1, beforeTime - beforeCounter - 1);
    return StatusSample{line.sliced(beforeTime + 1).toLongLong(nullptr, Hexadecimal),
                        counter.toLongLong(nullptr, Hexadecimal)};
}

bool StatusLog::read(const QString &path, StatusCounters &counters)
{
    QFile file(path);
    // A pipe or a device under this name could keep the reader forever.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        qCWarning(recordsLog) << "Cannot read" << path;
        return false;
    }
    counters.clear();
    QByteArray buffer(MaxHeldBytes + ChunkBytes, Qt::Uninitialized);
    char *const start = buffer.data();
    qsizetype held = 0;
    qint64 cutSeparators = 0;
    for (qint64 got = 0; (got = file.read(start + held, ChunkBytes)) > 0;) {
        const char *const end = start + held + got;
        const char *line = start;
        const char *from = start + held;
        while (const void *found = std::memchr(from, '\n', std::size_t(end - from))) {
            const char *lineEnd = static_cast<const char *>(found);
            takeLine(line, lineEnd, cutSeparators, counters);
            cutSeparators = 0;
            from = line = lineEnd + 1;
        }
        held = std::min<qsizetype>(end - line, MaxHeldBytes);
        cutSeparators += std::count(line, end - held, ';');
        std::memmove(start, end - held, std::size_t(held));
    }
    takeLine(start, start + held, cutSeparators, counters);
    if (file.error() != QFileDevice::NoError)
        qCWarning(recordsLog) << "Cannot read all of" << path << file.errorString();
    return true;
}

bool StatusLog::Writer::open(const QString &path)
{
    close();
    m_file.setFileName(path);
    if (m_file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return true;
    qCWarning(recordsLog) << "Cannot open" << path << "for writing:" << m_file.errorString();
    return false;
}

void StatusLog::Writer::close()
{
    m_file.close();
    m_wholeLinesBytes = 0;
    m_failing = false;
}

void StatusLog::Writer::append(const QString &message)
{
    QByteArray line = message.toUtf8();
    line.replace(',', ';').append("\r\n");
    const bool written = m_file.write(line) == line.size();
    if (written) {
        m_wholeLinesBytes += line.size();
    } else if (m_file.pos() != m_wholeLinesBytes || m_file.size() != m_wholeLinesBytes) {
        // Half a line would read as a line with other numbers.
        m_file.resize(m_wholeLinesBytes);
        m_file.seek(m_wholeLinesBytes);
    }
    if (m_failing == written) {
        m_failing = !written;
        if (m_failing)
            qCWarning(recordsLog) << "Cannot write to" << m_file.fileName() << m_file.errorString();
        else
            qCWarning(recordsLog) << "Writing again to" << m_file.fileName();
    }
}
