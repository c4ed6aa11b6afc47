#pragma once

#include "device/serialports.h"

#include <QSerialPort>
#include <QStringList>

#include <functional>
#include <future>
#include <memory>
#include <vector>

/// The one place that knows which port objects exist and who holds them. An owner is a name; an empty one
/// means that the port was created for somebody who has not claimed it yet.
class SerialPortManager
{
public:
    using Provider = std::function<QList<PortInfo>()>;

    static SerialPortManager &instance();
    Q_DISABLE_COPY_MOVE(SerialPortManager)

    /// Takes the place of SerialPorts::listed(); an empty one restores it.
    void setProvider(const Provider &provider);

    /// Begins to list the ports beside what the caller goes on with. The next call that needs the list waits
    /// for that one, so it should not be far off.
    void listAhead();

    /// All ports, whoever holds them.
    QList<PortInfo> listedPorts() const;
    /// The ports that \a owner may use, also those that it holds itself.
    QList<PortInfo> availablePorts(const QString &owner) const;
    QStringList availablePortNames(const QString &owner) const;

    /// The port of that name if nobody else holds it, open or closed as it is, otherwise null. The first call
    /// for a name creates the object without an owner, the next one claims it. Valid until its release.
    QSerialPort *acquirePort(const QString &name, const QString &owner);
    /// The same for a port that availablePorts() just gave, without listing the ports anew.
    QSerialPort *acquireListedPort(const PortInfo &info, const QString &owner);

    /// Closes the port and forgets it, unless another owner holds it.
    void releasePort(const QString &name, const QString &owner);
    /// Ports without an owner stay.
    void releaseOwner(const QString &owner);
    void closeAll();

    void dumpPorts() const;

private:
    // Closed at once and freed in a later pass of the event loop: a signal of the port may be on its way.
    struct CloseAndFree
    {
        void operator()(QSerialPort *port) const;
    };
    struct Entry
    {
        std::unique_ptr<QSerialPort, CloseAndFree> port;
        QString name;
        QString owner;
    };

    SerialPortManager() = default;
    ~SerialPortManager() = default;
    QSerialPort *claimPort(const QString &name, const QString &owner);

    Provider m_provider;
    mutable std::future<QList<PortInfo>> m_listAhead;
    /// In the order of creation.
    std::vector<Entry> m_ports;
};
