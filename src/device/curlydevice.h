#pragma once

#include "device/linewriter.h"
#include "device/portsearch.h"
#include "framework/common/connectionhelper.h"

#include <QObject>
#include <QQueue>
#include <QTimer>

class CurlyMessageParser;

/// Whatever talks to an instrument over a serial port: finds the port on which the right device answers,
/// keeps the link alive, sends messages in their order, hands incoming ones to the subclass and notices the
/// loss of the port. All signals of ports, timers and parser are handled in a later pass of the event loop.
class CurlyDevice : public QObject
{
    Q_OBJECT

public:
    /// A \a portNumber of 0 or more is the only one tried; see SerialPorts::number().
    explicit CurlyDevice(QObject *parent = nullptr, int portNumber = -1);
    ~CurlyDevice() override;

    /// Called once by the owner.
    void start();
    /// Switching off gives up all ports; it tells onDisconnected() but not connectedChanged().
    void setEnabled(bool enabled);
    void setPortNumber(int number);

    /// Queues a message for the next exchange tick; dropped if there never was a port, lost with a log line
    /// if the port has closed. \a waitMs of 1 or more waits that long for the bytes to leave.
    void send(const QString &text, int waitMs = 0);
    void writeNow(const NamedPort &to, const QByteArray &bytes, int waitMs, bool framed);
    /// Configures the keep-alive and switches it on.
    void setPing(const QString &text, int periodMs, bool framed);
    void setConnected(bool connected);

    bool isConnected() const { return m_connected; }
    /// Version, serial number and port name outlive the link.
    QString version() const { return m_version; }
    QString serialNumber() const { return m_serialNumber; }
    QString portName() const { return m_port.name; }

    virtual QString greetingRequest() const;
    /// Also the name under which the device holds its ports; fixed from the first search on.
    virtual QString deviceType() const;
    virtual QString newSerialNumber() const = 0;
    virtual QString greetingReply() const = 0;
    /// The line settings are the values of the QSerialPort enumerations.
    virtual int baudRate() const;
    virtual int parity() const;
    virtual int stopBits() const;
    virtual int dataBits() const;
    virtual QByteArray binaryGreeting() const;
    virtual bool usesTextProtocol() const;
    virtual void onTextMessage(const QString &message) = 0;
    virtual void onByteMessage(const QByteArray &message);
    virtual void onLinkUp() = 0;
    /// Tests one chunk as it arrived.
    virtual bool checkBinaryGreeting(const QByteArray &bytes) const;

public slots:
    void connectionTimerHandler();
    void exchangeTimerHandler();

signals:
    void onConnected();
    void onDisconnected();
    void connectedChanged(bool connected);
    void gotVersion(const QString &version);
    void gotSerialNumber(const QString &sn);
    void gotPortName(const QString &portName);
    void onMessage(const QString &msg);

protected:
    /// Takes the answers to "sn" and "version", asks for the version behind a good serial number and gives a
    /// blank instrument a new one. False for any other message.
    bool handleIdentity(const QString &message);
    /// \a kind, year and month, and a random number from 101 to 998; two instruments may draw the same.
    static QString drawSerialNumber(const QString &kind);

private:
    void handleSerialNumber(const QString &message);
    /// Stores and tells.
    void setVersion(const QString &version);

    void checkLink();
    void takePort(const NamedPort &answered);
    void readPort(QSerialPort *port);
    void queueMessage(const QString &message);
    void postNextMessage();
    void handleNextMessage();
    void handleError(QSerialPort *port, QSerialPort::SerialPortError error);

    CurlyMessageParser *m_parser = nullptr;
    /// Messages on their way to the subclass, each in a pass of the event loop of its own.
    QQueue<QString> m_inbox;
    bool m_connected = false;
    QString m_version;
    QString m_serialNumber;
    /// The taken port, and its name also after a disconnect.
    NamedPort m_port;
    QString m_owner;
    bool m_enabled = true;
    int m_portNumber;
    QTimer m_connectionTimer;
    QTimer m_exchangeTimer;
    ConnectionHelper m_permanentConnections;
    ConnectionHelper m_portConnections;
    PortSearch m_search;
    LineWriter m_writer;
};
