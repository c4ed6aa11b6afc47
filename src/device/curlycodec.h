#pragma once

#include <QByteArray>

/// The frame of the brace-delimited protocol: "{", escaped payload, optional checksum, "}".
namespace CurlyCodec {

/// The longest payload of a frame, in bytes before escaping.
inline constexpr qsizetype MaxPayloadBytes = 127;

/// \a framed adds the braces, \a withChecksum the byte that brings the payload's sum to zero modulo 256.
/// A payload of more than MaxPayloadBytes can't be sent: the result is empty.
QByteArray encodeFrame(const QByteArray &payload, bool framed, bool withChecksum);

/// The payload of one complete frame that still starts with "{", empty for anything else. A checksum byte
/// is neither tested nor removed.
QByteArray decodeFrame(const QByteArray &frame);

} // namespace CurlyCodec
