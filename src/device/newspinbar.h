#pragma once

#include "device/curlyspinbardevice.h"

/// The current instrument: identifies it, obtains serial number and version, reads its status messages.
class NewSpinbar : public CurlySpinbarDevice
{
    Q_OBJECT

public:
    using CurlySpinbarDevice::CurlySpinbarDevice;

    QString deviceType() const override;
    /// "B4", year and month, and a random number from 101 to 998; two instruments may draw the same.
    QString newSerialNumber() const override;
    QString greetingReply() const override;
    void onTextMessage(const QString &message) override;
    void onLinkUp() override;
};
