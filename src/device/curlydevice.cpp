#include "device/curlydevice.h"

#include "device/curlymessageparser.h"
#include "device/linklog.h"
#include "device/serialportmanager.h"

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto ConnectionPeriod = 5000ms;
constexpr auto ExchangePeriod = 50ms;
constexpr int DefaultBaudRate = 115200;

} // namespace

CurlyDevice::CurlyDevice(QObject *parent, int portNumber)
    : QObject(parent)
    , m_portNumber(portNumber)
    , m_search(*this, [this](const NamedPort &port) { takePort(port); })
{}

CurlyDevice::~CurlyDevice()
{
    m_connectionTimer.stop();
    m_exchangeTimer.stop();
    m_permanentConnections.clear();
    setEnabled(false);
}

void CurlyDevice::start()
{
    qCInfo(lcLink) << "CURLY INNIT";
    m_permanentConnections << connect(&m_connectionTimer, &QTimer::timeout, this,
                                      &CurlyDevice::connectionTimerHandler, Qt::QueuedConnection)
                           << connect(&m_exchangeTimer, &QTimer::timeout, this,
                                      &CurlyDevice::exchangeTimerHandler, Qt::QueuedConnection);
    m_connectionTimer.start(ConnectionPeriod);
    m_exchangeTimer.start(ExchangePeriod);
    connectionTimerHandler();
    m_parser = new CurlyMessageParser(this);
    if (usesTextProtocol()) {
        m_permanentConnections << connect(m_parser, &CurlyMessageParser::messageReceived, this,
                                          &CurlyDevice::queueMessage);
    } else {
        m_permanentConnections << connect(m_parser, &CurlyMessageParser::messageBytesReceived, this,
                                          &CurlyDevice::onByteMessage, Qt::QueuedConnection);
    }
}

void CurlyDevice::queueMessage(const QString &message)
{
    m_inbox.enqueue(message);
    if (m_inbox.size() == 1)
        postNextMessage();
}

void CurlyDevice::postNextMessage()
{
    QMetaObject::invokeMethod(this, &CurlyDevice::handleNextMessage, Qt::QueuedConnection);
}

// The next message waits behind the queued signals of this one: their listeners ask the device for its
// counters and clock, and would otherwise find those of the last message of a read.
void CurlyDevice::handleNextMessage()
{
    // A copy: what the subclass does may let further messages in.
    const QString message = m_inbox.head();
    onTextMessage(message);
    m_inbox.dequeue();
    if (!m_inbox.isEmpty())
        postNextMessage();
}

void CurlyDevice::setEnabled(bool enabled)
{
    m_enabled = enabled;
    if (enabled) {
        connectionTimerHandler();
        return;
    }
    SerialPortManager &manager = SerialPortManager::instance();
    if (m_port.port) {
        // Never leaves: the port is closed before the next exchange tick.
        send(u"stop"_s);
        manager.releasePort(m_port.name, m_owner);
    }
    m_search.end(m_owner, nullptr);
    // A port in its round of rest is in no list, but is ours and open.
    manager.releaseOwner(m_owner);
    m_connected = false;
    emit onDisconnected();
}

void CurlyDevice::setPortNumber(int number)
{
    m_portNumber = number;
}

void CurlyDevice::send(const QString &text, int waitMs)
{
    if (!m_port.name.isEmpty())
        m_writer.enqueue(m_port, text.toUtf8(), waitMs);
}

void CurlyDevice::writeNow(const NamedPort &to, const QByteArray &bytes, int waitMs, bool framed)
{
    m_writer.write(to, bytes, waitMs, framed);
}

void CurlyDevice::setPing(const QString &text, int periodMs, bool framed)
{
    m_writer.setKeepAlive(text.toUtf8(), periodMs, framed);
}

void CurlyDevice::setConnected(bool connected)
{
    if (m_connected == connected)
        return;
    m_connected = connected;
    if (!connected && m_port.port)
        SerialPortManager::instance().releasePort(m_port.name, m_owner);
    emit connectedChanged(connected);
    if (connected)
        emit onConnected();
    else
        emit onDisconnected();
}

void CurlyDevice::connectionTimerHandler()
{
    if (!m_enabled) {
        qCInfo(lcLink) << "Can not connect";
        return;
    }
    if (m_connected) {
        checkLink();
        return;
    }
    if (m_owner.isEmpty())
        m_owner = deviceType();
    m_search.round(m_owner, m_portNumber);
}

void CurlyDevice::checkLink()
{
    setConnected(m_port.isOpen() && !SerialPorts::hasHungUp(*m_port.port));
    if (!m_port.port)
        return;
    if (m_serialNumber.isEmpty())
        writeNow(m_port, "sn", 0, true);
    if (m_version.isEmpty())
        writeNow(m_port, "version", 0, true);
}

void CurlyDevice::exchangeTimerHandler()
{
    m_writer.flush();
    if (m_enabled)
        m_writer.keepAlive(m_port);
}

void CurlyDevice::takePort(const NamedPort &answered)
{
    setConnected(true);
    m_search.end(m_owner, answered.port);
    QSerialPort *port = SerialPortManager::instance().acquirePort(answered.name, m_owner);
    m_port = {port, answered.name};
    if (m_parser)
        m_parser->reset();
    m_portConnections.clear();
    m_portConnections << connect(
        port, &QSerialPort::errorOccurred, this,
        [this, port](QSerialPort::SerialPortError error) { handleError(port, error); }, Qt::QueuedConnection);
    m_portConnections << connect(
        port, &QSerialPort::readyRead, this, [this, port] { readPort(port); }, Qt::QueuedConnection);
    onLinkUp();
    emit gotPortName(m_port.name);
    qCInfo(lcLink).noquote() << objectName() << "CONNECTED";
}

void CurlyDevice::readPort(QSerialPort *port)
{
    // The call may have been queued before the port was given up.
    if (!m_parser || port != m_port.port || !port->isOpen())
        return;
    const QByteArray bytes = port->readAll();
    qCDebug(lcLinkBytes) << m_port.name << ">" << bytes;
    if (usesTextProtocol())
        m_parser->parseText(QString::fromUtf8(bytes));
    else
        m_parser->parseBytes(bytes);
}

void CurlyDevice::handleError(QSerialPort *port, QSerialPort::SerialPortError error)
{
    // Every error ends the link, a wait that timed out as well. NoError is raised by opening and clearing.
    if (port != m_port.port || error == QSerialPort::NoError)
        return;
    setConnected(false);
}

QString CurlyDevice::greetingRequest() const
{
    return u"whois"_s;
}

QString CurlyDevice::deviceType() const
{
    return u"genericCurly"_s;
}

int CurlyDevice::baudRate() const
{
    return DefaultBaudRate;
}

int CurlyDevice::parity() const
{
    return QSerialPort::NoParity;
}

int CurlyDevice::stopBits() const
{
    return QSerialPort::OneStop;
}

int CurlyDevice::dataBits() const
{
    return QSerialPort::Data8;
}

QByteArray CurlyDevice::binaryGreeting() const
{
    return {};
}

bool CurlyDevice::usesTextProtocol() const
{
    return true;
}

void CurlyDevice::onByteMessage(const QByteArray &message)
{
    Q_UNUSED(message)
}

bool CurlyDevice::checkBinaryGreeting(const QByteArray &bytes) const
{
    Q_UNUSED(bytes)
    return false;
}
