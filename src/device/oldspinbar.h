#pragma once

#include "device/curlyspinbardevice.h"

/// The earlier generation of the instrument, which speaks a byte protocol. It is found and its messages are
/// logged; its commands and status messages are not known, so it tells nothing of power and sensors.
class OldSpinbar : public CurlySpinbarDevice
{
    Q_OBJECT

public:
    using CurlySpinbarDevice::CurlySpinbarDevice;

    QString deviceType() const override;
    QString newSerialNumber() const override;
    QString greetingReply() const override;
    int baudRate() const override;
    int parity() const override;
    int stopBits() const override;
    int dataBits() const override;
    QByteArray binaryGreeting() const override;
    bool usesTextProtocol() const override;
    void onTextMessage(const QString &message) override;
    void onByteMessage(const QByteArray &message) override;
    void onLinkUp() override {}
    /// An answer in one chunk, that is a frame which begins as the greeting does.
    bool checkBinaryGreeting(const QByteArray &bytes) const override;
};
