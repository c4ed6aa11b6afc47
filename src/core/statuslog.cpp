#include "core/statuslog.h"

#include "core/recordslog.h"
#include "core/statusline.h"

#include "framework/common/fileutilities.h"

#include <QByteArray>
#include <QFileInfo>

#include <algorithm>
#include <cstring>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype ChunkBytes = 256LL * 1024;
// What is kept of a line that goes on and on: enough for its last two fields.
constexpr qsizetype MaxHeldBytes = 64LL * 1024;
// Shorter lines than a log has, so that the room for its samples is made once.
constexpr qint64 BytesPerLineEstimate = 32;
constexpr qint64 MaxLinesEstimate = 1'000'000;

void takeLine(const char *begin, const char *end, qint64 cutSeparators, StatusCounters &counters)
{
    StatusSample sample;
    if (StatusLine::readStoredLine(begin, end, cutSeparators, sample))
        counters.insert(sample.timeMs, sample.counter);
}

} // namespace

bool StatusLog::read(const QString &path, StatusCounters &counters)
{
    QFile file(path);
    // A pipe or a device under this name could keep the reader forever.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return false;
    counters.clear();
    counters.reserve(std::size_t(std::min(file.size() / BytesPerLineEstimate, MaxLinesEstimate)));
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
    m_error.clear();
    m_file.setFileName(path);
    if (m_file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return true;
    qCWarning(recordsLog) << "Cannot open" << path << "for writing:" << m_file.errorString();
    noteFailure();
    return false;
}

void StatusLog::Writer::noteFailure()
{
    if (m_error.isEmpty())
        m_error = u"'%1': %2"_s.arg(m_file.fileName(), m_file.errorString());
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
    const bool written = FileUtilities::writeAll(m_file, line);
    if (m_failing == written) {
        m_failing = !written;
        if (m_failing)
            qCWarning(recordsLog) << "Cannot write to" << m_file.fileName() << m_file.errorString();
        else
            qCWarning(recordsLog) << "Writing again to" << m_file.fileName();
    }
    if (written) {
        m_wholeLinesBytes += line.size();
        return;
    }
    noteFailure();
    if (m_file.pos() != m_wholeLinesBytes || m_file.size() != m_wholeLinesBytes) {
        // Half a line would read as a line with other numbers.
        m_file.resize(m_wholeLinesBytes);
        m_file.seek(m_wholeLinesBytes);
    }
}
