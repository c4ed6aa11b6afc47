#include "device/portsearch.h"

#include "device/curlydevice.h"
#include "device/curlymessageparser.h"
#include "device/linklog.h"
#include "device/serialportmanager.h"

#include <QTimer>

#include <algorithm>
#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace {

// Some instruments restart when their port is opened and miss the first greeting.
constexpr auto SecondGreetingDelay = 1000ms;

} // namespace

PortSearch::PortSearch(CurlyDevice &device, const Answered &answered)
    : m_device(device)
    , m_answered(answered)
{}

PortSearch::~PortSearch() = default;

void PortSearch::round(const QString &owner, int pinnedNumber)
{
    SerialPortManager &manager = SerialPortManager::instance();
    m_connections.clear();
    manager.releaseOwner(owner);
    const std::vector<Probe> greeted = std::exchange(m_probes, {});
    const QList<PortInfo> ports = manager.availablePorts(owner);
    for (const PortInfo &info : ports) {
        if (!isTried(info, pinnedNumber))
            continue;
        QSerialPort *port = manager.acquireListedPort(info, owner);
        const auto isGreeted = [port](const Probe &probe) { return probe.candidate.port == port; };
        // The round of rest, also for a port that an error has closed since.
        if (!port || std::any_of(greeted.begin(), greeted.end(), isGreeted))
            continue;
        if (openPort(*port))
            test({port, info.name});
    }
}

bool PortSearch::isTried(const PortInfo &info, int pinnedNumber) const
{
    return SerialPorts::isCandidate(info, m_device.usesTextProtocol())
           && (pinnedNumber < 0 || SerialPorts::number(info.name) == pinnedNumber);
}

bool PortSearch::openPort(QSerialPort &port) const
{
    // Before the port opens: a pseudo-terminal refuses parity afterwards.
    port.setBaudRate(m_device.baudRate());
    port.setDataBits(static_cast<QSerialPort::DataBits>(m_device.dataBits()));
    port.setParity(static_cast<QSerialPort::Parity>(m_device.parity()));
    port.setStopBits(static_cast<QSerialPort::StopBits>(m_device.stopBits()));
    port.setFlowControl(QSerialPort::NoFlowControl);
    return port.open(QIODevice::ReadWrite);
}

void PortSearch::test(const NamedPort &candidate)
{
    QSerialPort *port = candidate.port;
    qCInfo(lcLink).noquote() << "PORT OPEN" << m_device.objectName();
    m_connections << connect(
        port, &QSerialPort::readyRead, this, [this, port] { readAnswer(port); }, Qt::QueuedConnection);
    // An unplugged port raises errors without end until it is closed. This handler stays for the life of the
    // port, which outlasts the round; connected after the opening, which raises NoError.
    connect(
        port, &QSerialPort::errorOccurred, this,
        [guarded = QPointer(port)](QSerialPort::SerialPortError error) {
            if (error != QSerialPort::NoError && guarded && guarded->isOpen())
                guarded->close();
        },
        Qt::QueuedConnection);
    m_probes.push_back({candidate, std::make_unique<CurlyMessageParser>()});
    greet(candidate);
}

void PortSearch::greet(const NamedPort &to)
{
    if (!m_device.usesTextProtocol()) {
        m_device.writeNow(to, m_device.binaryGreeting(), 0, true);
        return;
    }
    const QByteArray greeting = m_device.greetingRequest().toUtf8();
    m_device.writeNow(to, greeting, 0, true);
    QTimer::singleShot(SecondGreetingDelay, this,
                       [this, greeting, to] { m_device.writeNow(to, greeting, 0, true); });
}

void PortSearch::readAnswer(QSerialPort *port)
{
    // A call that was queued before its port was given up finds no probe any more.
    const auto found = std::find_if(m_probes.begin(), m_probes.end(),
                                    [port](const Probe &probe) { return probe.candidate.port == port; });
    if (found == m_probes.end() || !port->isOpen())
        return;
    const NamedPort candidate = found->candidate;
    if (isAnswer(port->readAll(), *found->parser))
        m_answered(candidate);
}

bool PortSearch::isAnswer(const QByteArray &bytes, CurlyMessageParser &parser) const
{
    if (m_device.usesTextProtocol())
        return parser.parseText(QString::fromUtf8(bytes)).contains(m_device.greetingReply());
    qCInfo(lcLink).noquote() << "ANS" << bytes.toHex();
    return m_device.checkBinaryGreeting(bytes);
}

void PortSearch::end(const QString &owner, const QSerialPort *kept)
{
    m_connections.clear();
    const std::vector<Probe> probes = std::exchange(m_probes, {});
    for (const Probe &probe : probes) {
        if (probe.candidate.port && probe.candidate.port != kept)
            SerialPortManager::instance().releasePort(probe.candidate.name, owner);
    }
}
