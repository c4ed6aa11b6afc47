#pragma once

#include "device/curlydevice.h"
#include "device/instrumentstatus.h"

/// A device that knows of rodents, sensors, power and the motor's counters.
class CurlySpinbarDevice : public CurlyDevice
{
    Q_OBJECT

public:
    enum RodentMode { Rats = 0, Mice = 1 };
    Q_ENUM(RodentMode)

    using CurlyDevice::CurlyDevice;

    RodentMode rodentMode() const { return m_rodentMode; }
    /// Sends nothing by itself; sendIrMode() follows.
    void setRodentMode(RodentMode mode);
    /// Tells the instrument which sensors to report, if connected.
    void sendIrMode();

    bool isPowered() const { return m_status.powered; }
    qint64 rotationCounter() const { return m_status.rotationCounter; }
    qint64 instrumentClock() const { return m_status.clock; }

signals:
    void ratsIR(const QList<int> &values);
    void miceIR(const QList<int> &values);
    void powerChanged();
    /// The whole message, whatever was understood of it.
    void newStatus(const QString &st);

protected:
    void handleStatus(const QString &message);

private:
    RodentMode m_rodentMode = Rats;
    InstrumentStatus m_status;
};
