#pragma once

#include <QByteArray>
#include <QPointer>
#include <QSerialPort>
#include <QString>

#include <deque>

/// A port and the name that it goes by once it has been released and freed.
struct NamedPort
{
    QPointer<QSerialPort> port;
    QString name;

    bool isOpen() const { return port && port->isOpen(); }
};

/// The sending half of a link: frames, the queue of messages and the keep-alive.
class LineWriter
{
public:
    /// Queues a message that goes out framed with the next flush(). Waits as in write().
    void enqueue(const NamedPort &to, const QByteArray &payload, int waitMs);
    void flush();

    /// Writes at once; on a closed or missing port, or with a payload too long for a frame, the message is
    /// lost with a log line. \a waitMs of 1 or more waits that long for the bytes to leave. A wait that times
    /// out is an error of the port, and any error ends the link.
    void write(const NamedPort &to, const QByteArray &payload, int waitMs, bool framed);

    /// Switches the keep-alive on for good. The period is at least 50 ms.
    void setKeepAlive(const QByteArray &payload, qint64 periodMs, bool framed);
    /// Writes the keep-alive if it is on and nothing was written for its period.
    void keepAlive(const NamedPort &to);

private:
    struct Record
    {
        NamedPort to;
        QByteArray payload;
        int waitMs = 0;
    };

    std::deque<Record> m_queue;
    QByteArray m_keepAlive = "ping";
    /// Milliseconds since the epoch.
    qint64 m_lastWrite = 0;
    qint64 m_keepAlivePeriodMs = 1000;
    bool m_keepAliveFramed = true;
    bool m_keepAliveOn = false;
};
