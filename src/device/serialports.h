#pragma once

#include <QList>
#include <QString>

class QSerialPort;
class QSerialPortInfo;

/// One serial port as it is offered to users of ports. A value of ours beside QSerialPortInfo, which can't
/// be made for a port that the system does not list.
struct PortInfo
{
    QString name;
    /// What the system opens: a path, or on Windows a device name.
    QString location;
    QString description;
    QString manufacturer;

    bool operator==(const PortInfo &other) const = default;
};

namespace SerialPorts {

PortInfo fromSystem(const QSerialPortInfo &info);

/// The system's ports in its own order, then those of the environment variable SPINBAR_SERIAL_PORTS (absolute
/// paths separated by ";") that exist. Takes about 20 ms.
QList<PortInfo> listed();

/// What an outside tool calls the port: its name, where tools know ports by name, otherwise its path.
QString nameForTools(const PortInfo &port);

/// The number that a link is pinned to. "COM7" reads 7 everywhere. Other names read 0 on Windows; elsewhere
/// each has a number of its own, the same for the whole run of the program and above any COM number.
int number(const QString &name);

/// Whether the search for an instrument tries the port. \a textProtocol is that of the device searched for.
bool isCandidate(const PortInfo &port, bool textProtocol);

/// Whether the other end of an open port is gone, whatever the port's signals said; false where the platform
/// can't tell.
bool hasHungUp(const QSerialPort &port);

} // namespace SerialPorts
