#include "device/basedevice.h"

QString BaseDevice::serialNumber() const
{
    return m_serialNumber;
}

QString BaseDevice::version() const
{
    return m_version;
}

void BaseDevice::setStatus(StatusConnect status)
{
    if (m_status == status)
        return;
    m_status = status;
    if (status == Connected)
        emit connected();
    else if (status == NotConnected)
        emit disconnected();
}

void BaseDevice::fetchedSerialNumber(const QString &serialNumber)
{
    m_serialNumber = serialNumber;
    emit serialNumberFetched();
}

void BaseDevice::fetchedVersion(const QString &version)
{
    m_version = version;
    emit versionFetched();
}
