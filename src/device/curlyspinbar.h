#pragma once

#include "device/basedevice.h"
#include "device/curlyspinbardevice.h"

#include <QList>

#include <memory>

class NewSpinbar;
class SpinbarDetection;

/// The application's one view of the instrument: connection, speed with units, stimulation grid, sensor
/// readings and finished detections. Commands without a connection are dropped, values out of range clamped.
class CurlySpinbar : public BaseDevice
{
    Q_OBJECT

public:
    enum SpeedDimension {
        Speed_Motor_RotationsPerSecond = 0,
        Speed_RotationsPerSecond = 1,
        Speed_RotationsPerMinute = 2,
        Speed_MetersPerSecond = 3,
        Speed_CentimetersPerSecond = 4,
        Speed_KilometersPerHour = 5
    };
    Q_ENUM(SpeedDimension)

    /// The units offered to the operator; the values are those of SpeedDimension.
    enum OutputSpeedDimension {
        RotationsPerSecond = 1,
        RotationsPerMinute = 2,
        MetersPerSecond = 3,
        CentimetersPerSecond = 4,
        KilometersPerHour = 5
    };
    Q_ENUM(OutputSpeedDimension)

    /// Begins to search for the instrument at once.
    explicit CurlySpinbar(const QString &name, QObject *parent = nullptr);
    ~CurlySpinbar() override;

    void gridOff() override;
    /// 0 to 15 mA; nothing is sent for the level in force.
    void setGrid(double current) override;
    void startDevice() override {}
    bool connectDevice() override { return true; }
    void disconnectDevice() override;
    void stopDevice() override {}
    void writeSerialNumber(const QString &serialNumber) override;

    void setRodentMode(CurlySpinbarDevice::RodentMode mode);
    CurlySpinbarDevice::RodentMode rodentMode() const;
    /// Of the motor, 0 to SpeedConversion::MaxMotorSpeed.
    void setMotorSpeed(double rotationsPerSecond);
    void setAngularSpeed(double radiansPerSecond);

    /// Units are values of SpeedDimension or OutputSpeedDimension; for the drum of the present mode.
    double convertSpeed(double value, int from, int to) const;
    static double convertSpeed(double value, int from, int to, int isMouse);

    /// Of the present mode, in lane order.
    const QList<SpinbarDetection *> &detectors() const;
    const QList<SpinbarDetection *> &ratDetectors() const { return m_ratDetectors; }
    const QList<SpinbarDetection *> &mouseDetectors() const { return m_mouseDetectors; }
    /// Forgets the animals of both modes.
    void resetDetection();
    /// Emits detectionFinished() for a run that ends for another reason than a fall.
    void finishDetection(qint64 start, qint64 end, double rotations, int index, bool isRat);

    /// Off, the link gives up its ports. status() stays until the device next reports a change.
    void setLinkEnabled(bool enabled);
    bool isConnected() const;
    bool isPowered() const;
    QString portName() const;
    /// The device behind the facade, for its ticks and signals.
    NewSpinbar &device() const { return *m_device; }

signals:
    void modeChanged();
    void speedChanged();
    void ratsIR(const QList<int> &values);
    void miceIR(const QList<int> &values);
    void powerChanged();
    void newStatus(const QString &st);
    /// Instrument milliseconds, thousandths of a drum rotation, lane from 0.
    void detectionFinished(qint64 start, qint64 end, double rotations, int index, bool isRat);

private:
    QList<SpinbarDetection *> createDetectors(int count, bool rat);
    void listenToDevice();
    void handleConnected(bool connected);
    void updateLanes(const QList<SpinbarDetection *> &lanes, const QList<int> &values);

    QList<SpinbarDetection *> m_ratDetectors;
    QList<SpinbarDetection *> m_mouseDetectors;
    std::unique_ptr<NewSpinbar> m_device;
    qint64 m_rotationCounter = 0;
    qint64 m_instrumentClock = 0;
    float m_gridLevel = 0;
    bool m_linkEnabled = true;
};
