#include "device/curlyspinbardevice.h"

using namespace Qt::StringLiterals;

void CurlySpinbarDevice::setRodentMode(RodentMode mode)
{
    m_rodentMode = mode;
}

void CurlySpinbarDevice::sendIrMode()
{
    if (isConnected())
        send(m_rodentMode == Rats ? u"irmode=r"_s : u"irmode=m"_s);
}

void CurlySpinbarDevice::handleStatus(const QString &message)
{
    const bool mice = m_rodentMode == Mice;
    const InstrumentStatus::Update update = m_status.apply(message, mice);
    if (update.powerChanged)
        emit powerChanged();
    // Behind the counters, which the listener reads when the readings come.
    if (update.hasReadings && mice) {
        emit miceIR(m_status.mouseReadings);
    } else if (update.hasReadings) {
        emit ratsIR(m_status.ratReadings);
    }
    emit newStatus(message);
}
