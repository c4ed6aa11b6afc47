#include "simulator/statusreplay.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 MaxLineBytes = 4096;

bool fitsIntoAFrame(const QByteArray &line)
{
    return std::none_of(line.begin(), line.end(),
                        [](char c) { return uchar(c) < ' ' || c == '{' || c == '}' || c == '\\'; });
}

} // namespace

bool StatusReplay::open(const QString &path)
{
    m_file.setFileName(path);
    return m_file.open(QIODevice::ReadOnly);
}

std::optional<QByteArray> StatusReplay::next()
{
    while (true) {
        const QByteArray line = m_file.readLine(MaxLineBytes + 1);
        if (line.isEmpty())
            return std::nullopt;
        const bool whole = line.size() < MaxLineBytes || line.endsWith('\n');
        if (!whole)
            skipRestOfLine();
        QByteArray message = line.trimmed();
        if (!whole || message.isEmpty() || !fitsIntoAFrame(message)) {
            ++m_skippedLines;
            continue;
        }
        message.replace(';', ',');
        bool ok = false;
        const qint64 clock = message.mid(message.lastIndexOf(',') + 1).toLongLong(&ok, 16);
        if (ok)
            m_clockMs = clock;
        return message;
    }
}

void StatusReplay::skipRestOfLine()
{
    QByteArray rest;
    do {
        rest = m_file.readLine(MaxLineBytes + 1);
    } while (!rest.isEmpty() && !rest.endsWith('\n'));
}
