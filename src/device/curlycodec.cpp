#include "device/curlycodec.h"

namespace {

constexpr char Escape = '\\';
constexpr char Open = '{';
constexpr char Close = '}';
constexpr char EscapeMask = 0x20;

bool isSpecial(char byte)
{
    return byte == Escape || byte == Open || byte == Close;
}

char masked(char byte)
{
    return static_cast<char>(byte ^ EscapeMask);
}

} // namespace

QByteArray CurlyCodec::encodeFrame(const QByteArray &payload, bool framed, bool withChecksum)
{
    if (payload.size() > MaxPayloadBytes)
        return {};
    QByteArray frame;
    frame.reserve(payload.size() + 2);
    if (framed)
        frame.append(Open);
    quint8 checksum = 0;
    for (const char byte : payload) {
        checksum = static_cast<quint8>(checksum - static_cast<quint8>(byte));
        if (isSpecial(byte))
            frame.append(Escape);
        frame.append(isSpecial(byte) ? masked(byte) : byte);
    }
    auto last = static_cast<char>(checksum);
    // The instrument's own encoder escapes a special checksum before it knows whether one is wanted, so that
    // some payloads end in a lone backslash. Receivers drop it.
    if (isSpecial(last)) {
        frame.append(Escape);
        last = masked(last);
    }
    if (withChecksum)
        frame.append(last);
    if (framed)
        frame.append(Close);
    return frame;
}

QByteArray CurlyCodec::decodeFrame(const QByteArray &frame)
{
    if (frame.size() < 2 || frame.front() != Open)
        return {};
    QByteArray payload;
    payload.reserve(frame.size());
    for (qsizetype i = 1; i < frame.size(); ++i) {
        const char byte = frame.at(i);
        if (byte == Close)
            continue;
        if (byte != Escape)
            payload.append(byte);
        else if (++i < frame.size())
            payload.append(masked(frame.at(i)));
    }
    return payload;
}
