#include "device/curlyshelterdevice.h"

#include "device/linklog.h"

using namespace Qt::StringLiterals;

QString CurlyShelterDevice::deviceType() const
{
    return objectName().isEmpty() ? u"Shelter"_s : objectName();
}

QString CurlyShelterDevice::newSerialNumber() const
{
    return drawSerialNumber(u"S4"_s);
}

QString CurlyShelterDevice::greetingReply() const
{
    return u"iamshelter"_s;
}

void CurlyShelterDevice::onTextMessage(const QString &message)
{
    if (!handleIdentity(message) && message.startsWith("S,"_L1))
        qCInfo(lcLink).noquote() << "Status" << message;
}

void CurlyShelterDevice::onLinkUp()
{
    send(u"sn"_s);
}
