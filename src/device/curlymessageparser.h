#pragma once

#include <QByteArrayList>
#include <QObject>
#include <QStringList>

/// Cuts messages out of the stream of one serial port, as text or as byte frames. Nothing is reported as
/// malformed: what is no message to the receiver is the receiver's to say.
class CurlyMessageParser : public QObject
{
    Q_OBJECT

public:
    explicit CurlyMessageParser(QObject *parent = nullptr);

    /// The messages that this chunk completes, trimmed and never empty; each is emitted as well. Line feed,
    /// "{" and "}" all end a message. Escapes stay as they are.
    QStringList parseText(const QString &chunk);

    /// Delivers every frame completed since the last reset, those of earlier calls again, and each of them
    /// empty: a frame comes to the decoder without the opening brace that it insists on. The one receiver
    /// counts on nothing else.
    QByteArrayList parseBytes(const QByteArray &chunk);

    /// Forgets everything received so far.
    void reset();

signals:
    void messageReceived(const QString &msg);
    void messageBytesReceived(const QByteArray &msg);

private:
    QString m_pendingText;
    QByteArray m_pendingBytes;
    QByteArrayList m_completedFrames;
};
