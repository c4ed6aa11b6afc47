#pragma once

#include <QObject>
#include <QString>

/// An instrument as the application sees it.
class BaseDevice : public QObject
{
    Q_OBJECT

public:
    enum StatusConnect { Connected = 0, Connecting = 1, NotConnected = 2 };
    Q_ENUM(StatusConnect)

    using QObject::QObject;

    virtual QString serialNumber() const;
    virtual QString version() const;
    virtual void gridOff() = 0;
    /// \a current is in mA.
    virtual void setGrid(double current) = 0;
    virtual void startDevice() = 0;
    virtual bool connectDevice() = 0;
    virtual void disconnectDevice() = 0;
    virtual void stopDevice() = 0;
    virtual void writeSerialNumber(const QString &serialNumber) = 0;

    StatusConnect status() const { return m_status; }
    /// Tells connected() or disconnected() on a change.
    void setStatus(StatusConnect status);

signals:
    void serialNumberFetched();
    void versionFetched();
    void disconnected();
    void connected();

protected:
    /// Store and tell.
    void fetchedSerialNumber(const QString &serialNumber);
    void fetchedVersion(const QString &version);

private:
    QString m_serialNumber;
    QString m_version;
    StatusConnect m_status = NotConnected;
};
