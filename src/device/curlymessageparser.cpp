#include "device/curlymessageparser.h"

#include "device/curlycodec.h"

#include <utility>

namespace {

constexpr char OpenBrace = '{';
constexpr char CloseBrace = '}';

bool isDelimiter(QChar c)
{
    return c == u'\n' || c == u'{' || c == u'}';
}

} // namespace

CurlyMessageParser::CurlyMessageParser(QObject *parent)
    : QObject(parent)
{}

QStringList CurlyMessageParser::parseText(const QString &chunk)
{
    QStringList completed;
    const QStringView text(chunk);
    qsizetype from = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!isDelimiter(text[i]))
            continue;
        m_pendingText.append(text.sliced(from, i - from));
        from = i + 1;
        const QString message = std::exchange(m_pendingText, {}).trimmed();
        if (!message.isEmpty())
            completed.append(message);
    }
    m_pendingText.append(text.sliced(from));
    for (const QString &message : std::as_const(completed))
        emit messageReceived(message);
    return completed;
}

QByteArrayList CurlyMessageParser::parseBytes(const QByteArray &chunk)
{
    for (const char byte : chunk) {
        if (byte == CloseBrace) {
            if (!m_pendingBytes.isEmpty())
                m_completedFrames.append(std::exchange(m_pendingBytes, {}));
        } else if (byte != OpenBrace) {
            m_pendingBytes.append(byte);
        }
    }
    QByteArrayList messages;
    messages.reserve(m_completedFrames.size());
    for (const QByteArray &frame : std::as_const(m_completedFrames))
        messages.append(CurlyCodec::decodeFrame(frame));
    for (const QByteArray &message : std::as_const(messages))
        emit messageBytesReceived(message);
    return messages;
}

void CurlyMessageParser::reset()
{
    m_pendingText.clear();
    m_pendingBytes.clear();
    m_completedFrames.clear();
}
