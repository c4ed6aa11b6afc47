#pragma once

#include "device/curlydevice.h"

/// Another kind of instrument that speaks the text protocol. Only who it is is known of it.
class CurlyShelterDevice : public CurlyDevice
{
    Q_OBJECT

public:
    using CurlyDevice::CurlyDevice;

    /// The object's name, if it has one.
    QString deviceType() const override;
    QString newSerialNumber() const override;
    QString greetingReply() const override;
    void onTextMessage(const QString &message) override;
    void onLinkUp() override;
};
