#include "device/curlyspinbar.h"

#include "detection/spinbardetection.h"
#include "device/newspinbar.h"
#include "device/serialports.h"
#include "device/speedconversion.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int KeepAlivePeriodMs = 1000;
constexpr double MaxGridCurrent = 15;
constexpr double RadiansPerRotation = 6.283185307179586;

// What is no number becomes zero as well: the drum stands still and the grid is dead.
double clamped(double value, double max)
{
    return value > 0 ? std::min(value, max) : 0;
}

} // namespace

CurlySpinbar::CurlySpinbar(const QString &name, QObject *parent)
    : BaseDevice(parent)
    , m_ratDetectors(createDetectors(InstrumentStatus::RatLanes, true))
    , m_mouseDetectors(createDetectors(InstrumentStatus::MouseLanes, false))
    , m_device(std::make_unique<NewSpinbar>())
{
    m_device->setObjectName(name);
    listenToDevice();
    m_device->start();
}

CurlySpinbar::~CurlySpinbar() = default;

QList<SpinbarDetection *> CurlySpinbar::createDetectors(int count, bool rat)
{
    QList<SpinbarDetection *> detectors;
    for (int lane = 0; lane < count; ++lane) {
        auto *detector = new SpinbarDetection(lane, rat, this);
        connect(detector, &SpinbarDetection::lost, this,
                [this, rat](qint64 start, qint64 end, double rotations, int index) {
                    emit detectionFinished(start, end, rotations, index, rat);
                });
        detectors.append(detector);
    }
    return detectors;
}

void CurlySpinbar::listenToDevice()
{
    const NewSpinbar *device = m_device.get();
    connect(device, &CurlyDevice::connectedChanged, this, &CurlySpinbar::handleConnected,
            Qt::QueuedConnection);
    connect(device, &CurlyDevice::gotSerialNumber, this, &CurlySpinbar::fetchedSerialNumber,
            Qt::QueuedConnection);
    connect(device, &CurlySpinbarDevice::powerChanged, this, &CurlySpinbar::powerChanged,
            Qt::QueuedConnection);
    connect(device, &CurlyDevice::gotVersion, this, &CurlySpinbar::fetchedVersion, Qt::QueuedConnection);
    connect(device, &CurlySpinbarDevice::newStatus, this, &CurlySpinbar::newStatus, Qt::QueuedConnection);
    connect(
        device, &CurlySpinbarDevice::ratsIR, this,
        [this](const QList<int> &values) {
            updateLanes(m_ratDetectors, values);
            emit ratsIR(values);
        },
        Qt::QueuedConnection);
    connect(
        device, &CurlySpinbarDevice::miceIR, this,
        [this](const QList<int> &values) {
            updateLanes(m_mouseDetectors, values);
            emit miceIR(values);
        },
        Qt::QueuedConnection);
}

void CurlySpinbar::handleConnected(bool connected)
{
    setStatus(connected ? Connected : NotConnected);
    // From the first connect on the instrument is looked for on this port only.
    m_device->setPortNumber(SerialPorts::number(m_device->portName()));
    m_device->send(u"sn"_s);
    if (!connected)
        return;
    m_device->setPing(u"p"_s, KeepAlivePeriodMs, false);
    m_device->send(u"statusOn"_s);
    m_device->sendIrMode();
}

void CurlySpinbar::updateLanes(const QList<SpinbarDetection *> &lanes, const QList<int> &values)
{
    m_rotationCounter = m_device->rotationCounter();
    m_instrumentClock = m_device->instrumentClock();
    const qsizetype count = std::min(lanes.size(), values.size());
    for (qsizetype lane = 0; lane < count; ++lane)
        lanes.at(lane)->update(values.at(lane), m_rotationCounter, m_instrumentClock);
}

void CurlySpinbar::gridOff()
{
    m_gridLevel = 0;
    m_device->send(u"off"_s);
}

void CurlySpinbar::setGrid(double current)
{
    const double level = clamped(current, MaxGridCurrent);
    // The stored level has 32 bits: one that they can't hold exactly is sent again each time.
    if (level == double(m_gridLevel))
        return;
    m_gridLevel = float(level);
    m_device->send(u"grid="_s + QString::number(level, 'f', 1));
}

void CurlySpinbar::disconnectDevice()
{
    m_device->setEnabled(false);
}

void CurlySpinbar::writeSerialNumber(const QString &serialNumber)
{
    m_device->send(u"writesn="_s + serialNumber);
}

void CurlySpinbar::setRodentMode(CurlySpinbarDevice::RodentMode mode)
{
    m_device->setRodentMode(mode);
    m_device->sendIrMode();
    emit modeChanged();
}

CurlySpinbarDevice::RodentMode CurlySpinbar::rodentMode() const
{
    return m_device->rodentMode();
}

void CurlySpinbar::setMotorSpeed(double rotationsPerSecond)
{
    if (isConnected())
        m_device->send(
            u"rotate="_s
            + QString::number(clamped(rotationsPerSecond, SpeedConversion::MaxMotorSpeed), 'f', 3));
}

void CurlySpinbar::setAngularSpeed(double radiansPerSecond)
{
    setMotorSpeed(radiansPerSecond / RadiansPerRotation);
}

double CurlySpinbar::convertSpeed(double value, int from, int to) const
{
    return SpeedConversion::convert(value, from, to, rodentMode() == CurlySpinbarDevice::Mice);
}

double CurlySpinbar::convertSpeed(double value, int from, int to, int isMouse)
{
    return SpeedConversion::convert(value, from, to, isMouse != 0);
}

const QList<SpinbarDetection *> &CurlySpinbar::detectors() const
{
    return rodentMode() == CurlySpinbarDevice::Rats ? m_ratDetectors : m_mouseDetectors;
}

void CurlySpinbar::resetDetection()
{
    const QList<SpinbarDetection *> all = m_ratDetectors + m_mouseDetectors;
    for (SpinbarDetection *detector : all)
        detector->reset();
}

void CurlySpinbar::finishDetection(qint64 start, qint64 end, double rotations, int index, bool isRat)
{
    emit detectionFinished(start, end, rotations, index, isRat);
}

void CurlySpinbar::setLinkEnabled(bool enabled)
{
    m_linkEnabled = enabled;
    m_device->setEnabled(enabled);
}

bool CurlySpinbar::isConnected() const
{
    return status() == Connected;
}

bool CurlySpinbar::isPowered() const
{
    return m_device->isPowered();
}

QString CurlySpinbar::portName() const
{
    return m_device->portName();
}
