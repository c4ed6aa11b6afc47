#pragma once

#include <QDeadlineTimer>
#include <QObject>
#include <QString>
#include <QTimer>

#include <deque>

class QSocketNotifier;

/// A serial line without hardware: the instrument's end of a pseudo-terminal, whose other end any program
/// opens like a serial port. POSIX only; this class is the one seam of the simulator to the system, and a
/// platform without pseudo-terminals needs another class with this face.
class PseudoTerminal : public QObject
{
    Q_OBJECT

public:
    explicit PseudoTerminal(QObject *parent = nullptr);
    /// As close().
    ~PseudoTerminal() override;

    /// Makes a new terminal, in raw mode from its first byte on, and with \a linkPath a symbolic link to
    /// it. Of what may stand at \a linkPath only a link that a dead terminal left behind is replaced. On
    /// failure nothing is left open, and errorString() tells why.
    bool open(const QString &linkPath = {});

    /// Hangs up the other side, forgets what was not sent yet and removes the link. May be opened again,
    /// also under the same link.
    void close();

    bool isOpen() const { return m_master >= 0; }
    /// What the other side opens: the link if there is one, otherwise the device. Empty when closed.
    QString path() const { return m_linkPath.isEmpty() ? m_devicePath : m_linkPath; }
    QString devicePath() const { return m_devicePath; }
    QString errorString() const { return m_error; }

    /// Sends one message without ever blocking. What the system does not take at once is queued for two
    /// seconds; when the other side does not read, messages are dropped, each as a whole. False if this one
    /// was dropped at once.
    bool write(const QByteArray &message);
    /// Messages lost since construction because nobody read them.
    qint64 droppedMessages() const { return m_dropped; }

signals:
    /// Bytes as they came: a chunk has nothing to do with messages.
    void received(const QByteArray &bytes);

private:
    struct Queued
    {
        QByteArray bytes;
        QDeadlineTimer until;
    };

    bool openMaster();
    bool openSlave();
    bool makeLink(const QString &linkPath);
    bool fail(const QString &what);
    void readMaster();
    void sendQueued();
    void dropUnread();

    QString m_devicePath;
    QString m_linkPath;
    QString m_error;
    int m_master = -1;
    /// Held so that the terminal lives, and the master does not report a hang-up, while no program has it
    /// open.
    int m_slave = -1;
    QSocketNotifier *m_notifier = nullptr;
    std::deque<Queued> m_queue;
    qsizetype m_queuedBytes = 0;
    /// Bytes of the first queued message that are out already.
    qsizetype m_sentOfFirst = 0;
    qint64 m_dropped = 0;
    QTimer m_retry;
};
