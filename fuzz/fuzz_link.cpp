#include "fuzztarget.h"

#include "device/curlycodec.h"
#include "device/curlymessageparser.h"

using FuzzTarget::require;

namespace {

void cutsAnywhere(const QString &text, qsizetype cut)
{
    CurlyMessageParser whole;
    CurlyMessageParser pieces;
    const QStringList expected = whole.parseText(text);
    const QStringList messages = pieces.parseText(text.left(cut)) + pieces.parseText(text.mid(cut));
    require(messages == expected, "messages do not depend on how the stream is cut");
    for (const QString &message : messages)
        require(!message.isEmpty() && message == message.trimmed(), "messages are trimmed and not empty");
}

void comesBack(const QByteArray &payload)
{
    const QByteArray frame = CurlyCodec::encodeFrame(payload, true, false);
    if (payload.size() > CurlyCodec::MaxPayloadBytes) {
        require(frame.isEmpty(), "what is too long is not sent");
        return;
    }
    // Some sums leave a lone backslash in front of the closing brace.
    const QByteArray back = CurlyCodec::decodeFrame(frame);
    require(back == payload || back == payload + ']', "a framed payload comes back");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const QByteArray stream = FuzzTarget::bytes(data + 1, size - 1);
    const QString text = QString::fromUtf8(stream);
    cutsAnywhere(text, data[0] % (text.size() + 1));
    comesBack(stream);
    CurlyCodec::decodeFrame(stream);
    CurlyMessageParser frames;
    frames.parseBytes(stream.left(data[0]));
    frames.parseBytes(stream.mid(data[0]));
    return 0;
}
