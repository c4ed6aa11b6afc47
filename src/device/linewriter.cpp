#include "device/linewriter.h"

#include "device/curlycodec.h"
#include "device/linklog.h"

#include <QDateTime>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// What the drivers of cheap adapters take without losing bytes. At 115200 baud it needs 11 ms on the wire.
constexpr qsizetype PieceBytes = 128;
constexpr int PieceWaitMs = 10;
constexpr qint64 MinKeepAlivePeriodMs = 50;

// One wait for each write and never two: a second one would find nothing to wait for and time out.
void writeInPieces(QSerialPort &port, const QByteArray &frame)
{
    for (qsizetype at = 0; at < frame.size(); at += PieceBytes) {
        port.write(frame.mid(at, PieceBytes));
        port.waitForBytesWritten(PieceWaitMs);
    }
}

} // namespace

void LineWriter::enqueue(const NamedPort &to, const QByteArray &payload, int waitMs)
{
    m_queue.push_back({to, payload, waitMs});
}

void LineWriter::flush()
{
    while (!m_queue.empty()) {
        const Record record = std::move(m_queue.front());
        m_queue.pop_front();
        write(record.to, record.payload, record.waitMs, true);
    }
}

void LineWriter::write(const NamedPort &to, const QByteArray &payload, int waitMs, bool framed)
{
    if (!to.isOpen()) {
        qCInfo(lcLink).noquote() << "PORT closed" << (to.name.isEmpty() ? u"COM-UNKNOWN"_s : to.name);
        return;
    }
    m_lastWrite = QDateTime::currentMSecsSinceEpoch();
    const QByteArray frame = CurlyCodec::encodeFrame(payload, framed, false);
    if (frame.isEmpty()) {
        qCWarning(lcLink) << "No frame can hold" << payload.size() << "bytes";
        return;
    }
    qCDebug(lcLinkBytes) << to.name << "<" << frame;
    if (frame.size() > PieceBytes) {
        writeInPieces(*to.port, frame);
        return;
    }
    to.port->write(frame);
    if (waitMs >= 1)
        to.port->waitForBytesWritten(waitMs);
}

void LineWriter::setKeepAlive(const QByteArray &payload, qint64 periodMs, bool framed)
{
    m_keepAlive = payload;
    m_keepAlivePeriodMs = std::max(periodMs, MinKeepAlivePeriodMs);
    m_keepAliveFramed = framed;
    m_keepAliveOn = true;
}

void LineWriter::keepAlive(const NamedPort &to)
{
    if (!m_keepAliveOn || !to.isOpen())
        return;
    const qint64 quietMs = QDateTime::currentMSecsSinceEpoch() - m_lastWrite;
    // Below zero the host's clock was set back: better one message too many than an hour of silence.
    if (quietMs < 0 || quietMs >= m_keepAlivePeriodMs)
        write(to, m_keepAlive, 0, m_keepAliveFramed);
}
