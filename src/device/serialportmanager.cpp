#include "device/serialportmanager.h"

#include "device/hangupwatch.h"
#include "device/linklog.h"

#include <algorithm>

void SerialPortManager::CloseAndFree::operator()(QSerialPort *port) const
{
    // Closing a closed port would raise an error signal.
    if (port->isOpen())
        port->close();
    port->deleteLater();
}

SerialPortManager &SerialPortManager::instance()
{
    static SerialPortManager manager;
    return manager;
}

void SerialPortManager::setProvider(const Provider &provider)
{
    m_provider = provider;
}

void SerialPortManager::listAhead()
{
    m_listAhead = std::async(std::launch::async, SerialPorts::listed);
}

QList<PortInfo> SerialPortManager::listedPorts() const
{
    if (m_provider)
        return m_provider();
    return m_listAhead.valid() ? m_listAhead.get() : SerialPorts::listed();
}

QList<PortInfo> SerialPortManager::availablePorts(const QString &owner) const
{
    QList<PortInfo> ports = listedPorts();
    ports.removeIf([this, &owner](const PortInfo &port) {
        return std::any_of(m_ports.begin(), m_ports.end(), [&](const Entry &entry) {
            return entry.name == port.name && !entry.owner.isEmpty() && entry.owner != owner;
        });
    });
    return ports;
}

QStringList SerialPortManager::availablePortNames(const QString &owner) const
{
    QStringList names;
    const QList<PortInfo> ports = availablePorts(owner);
    for (const PortInfo &port : ports)
        names.append(port.name);
    return names;
}

QSerialPort *SerialPortManager::acquirePort(const QString &name, const QString &owner)
{
    if (QSerialPort *port = claimPort(name, owner))
        return port;
    const QList<PortInfo> ports = availablePorts(owner);
    const auto found =
        std::find_if(ports.begin(), ports.end(), [&name](const PortInfo &info) { return info.name == name; });
    return found == ports.end() ? nullptr : acquireListedPort(*found, owner);
}

QSerialPort *SerialPortManager::acquireListedPort(const PortInfo &info, const QString &owner)
{
    if (QSerialPort *port = claimPort(info.name, owner))
        return port;
    const auto isHeld = [&info](const Entry &entry) { return entry.name == info.name; };
    if (std::any_of(m_ports.begin(), m_ports.end(), isHeld))
        return nullptr;
    std::unique_ptr<QSerialPort, CloseAndFree> port(new QSerialPort(info.location));
    new HangUpWatch(port.get());
    return m_ports.emplace_back(Entry{std::move(port), info.name, QString()}).port.get();
}

QSerialPort *SerialPortManager::claimPort(const QString &name, const QString &owner)
{
    const auto found = std::find_if(m_ports.begin(), m_ports.end(), [&](const Entry &entry) {
        return entry.name == name && (entry.owner.isEmpty() || entry.owner == owner);
    });
    if (found == m_ports.end())
        return nullptr;
    found->owner = owner;
    return found->port.get();
}

void SerialPortManager::releasePort(const QString &name, const QString &owner)
{
    const QSerialPort *port = acquirePort(name, owner);
    if (!port)
        return;
    std::erase_if(m_ports, [port](const Entry &entry) { return entry.port.get() == port; });
    dumpPorts();
}

void SerialPortManager::releaseOwner(const QString &owner)
{
    std::erase_if(m_ports,
                  [&owner](const Entry &entry) { return !entry.owner.isEmpty() && entry.owner == owner; });
}

void SerialPortManager::closeAll()
{
    m_ports.clear();
}

void SerialPortManager::dumpPorts() const
{
    qCDebug(lcLink) << "";
    for (const Entry &entry : m_ports)
        qCDebug(lcLink).noquote() << "P" << entry.name << entry.owner;
    qCDebug(lcLink) << "";
}
