#include "device/hangupwatch.h"

#include "device/serialports.h"

#include <QSerialPort>

#include <chrono>

using namespace std::chrono_literals;

namespace {

constexpr auto Interval = 100ms;

} // namespace

HangUpWatch::HangUpWatch(QSerialPort *port)
    : QObject(port)
    , m_port(port)
{
    m_timer.callOnTimeout(this, &HangUpWatch::look);
    m_timer.start(Interval);
}

void HangUpWatch::look()
{
    if (SerialPorts::hasHungUp(*m_port))
        emit m_port->errorOccurred(QSerialPort::ResourceError);
}
