#include "device/serialports.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QSerialPort>
#include <QSerialPortInfo>

#include <algorithm>

#ifndef Q_OS_WIN
#include <poll.h>
#endif

using namespace Qt::StringLiterals;

namespace {

constexpr char ExtraPortsVariable[] = "SPINBAR_SERIAL_PORTS";
constexpr auto ComPrefix = "COM"_L1;
#ifndef Q_OS_WIN
// Windows counts its ports up to 256 by default and 4096 at most.
constexpr int FirstOwnNumber = 100'000;
#endif

PortInfo extraPort(const QString &path)
{
    QSerialPort port;
    port.setPortName(path);
    return {port.portName(), path, u"Additional port"_s, QString()};
}

bool isListed(const QList<PortInfo> &ports, const QString &name)
{
    return std::any_of(ports.begin(), ports.end(),
                       [&name](const PortInfo &port) { return port.name == name; });
}

} // namespace

PortInfo SerialPorts::fromSystem(const QSerialPortInfo &info)
{
    return {info.portName(), info.systemLocation(), info.description(), info.manufacturer()};
}

QList<PortInfo> SerialPorts::listed()
{
    QList<PortInfo> ports;
    const QList<QSerialPortInfo> system = QSerialPortInfo::availablePorts();
    for (const QSerialPortInfo &info : system)
        ports.append(fromSystem(info));
    const QStringList paths =
        QString::fromLocal8Bit(qgetenv(ExtraPortsVariable)).split(u';', Qt::SkipEmptyParts);
    for (const QString &path : paths) {
        if (!QDir::isAbsolutePath(path) || !QFileInfo::exists(path))
            continue;
        if (const PortInfo port = extraPort(path); !isListed(ports, port.name))
            ports.append(port);
    }
    return ports;
}

QString SerialPorts::nameForTools(const PortInfo &port)
{
#ifdef Q_OS_WIN
    return port.name;
#else
    return port.location;
#endif
}

int SerialPorts::number(const QString &name)
{
    bool isNumber = false;
    const int comNumber = QString(name).remove(ComPrefix).toInt(&isNumber);
#ifdef Q_OS_WIN
    return isNumber ? comNumber : 0;
#else
    if (name.startsWith(ComPrefix) && isNumber && comNumber >= 0)
        return comNumber;
    static QHash<QString, int> numbers;
    const auto known = numbers.constFind(name);
    if (known != numbers.cend())
        return *known;
    return *numbers.insert(name, FirstOwnNumber + int(numbers.size()));
#endif
}

bool SerialPorts::isCandidate(const PortInfo &port, bool textProtocol)
{
    if (textProtocol && port.manufacturer == "FTDI"_L1)
        return false;
    // How Windows in Russian calls the ports of the main board.
    return !port.description.contains(u"Последовательный порт"_s)
           && !port.description.contains("Bluetooth"_L1);
}

bool SerialPorts::hasHungUp(const QSerialPort &port)
{
#ifdef Q_OS_WIN
    Q_UNUSED(port)
    return false;
#else
    if (!port.isOpen())
        return false;
    pollfd state{port.handle(), 0, 0};
    return ::poll(&state, 1, 0) > 0 && (state.revents & (POLLHUP | POLLERR | POLLNVAL)) != 0;
#endif
}
