#pragma once

#include "device/curlymessageparser.h"

#include <QObject>
#include <QStringList>

#include <chrono>

class QDate;
class QSerialPort;
struct PortInfo;

/// One motor parameter of the instrument.
struct DeviceParameter
{
    /// For the operator, to be translated in the context "SpinbarWriterWidget"; as is the tooltip.
    const char *name;
    const char *setter;
    /// In the instrument's answer.
    const char *key;
    double lowest;
    double highest;
    double step;
    const char *tooltip;
};

/// Reads and writes what the maker sets in an instrument, over a port of its own. Whatever happens is told in
/// the console, in HTML, and nothing else says whether a transaction succeeded. A port that was only written
/// to stays open: the next transaction on it fails, and listening gives it up. At the latest it is given up
/// with this object.
class DeviceWriter : public QObject
{
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds ListeningTime{5000};

    explicit DeviceWriter(QObject *parent = nullptr, std::chrono::milliseconds listeningTime = ListeningTime);
    ~DeviceWriter() override;

    /// Sends \a text as it stands, and with \a listen gives out the answers for the listening time. False,
    /// and nothing is done, while another transaction runs.
    bool transaction(const QString &portName, const QString &text, bool listen);

    bool readAll(const QString &portName);
    bool writeParameter(const QString &portName, const DeviceParameter &parameter, double value);
    bool writeSerialNumber(const QString &portName, const QString &serialNumber);

    static const QList<DeviceParameter> &parameters();
    /// What the operator chooses from, and the name of the port behind a choice.
    static QStringList choices(const QList<PortInfo> &ports);
    static QString portName(const QString &choice);
    /// Of the first device of the month.
    static QString newSerialNumber(const QDate &date);

signals:
    void serialNumberRead(const QString &serialNumber);
    void versionRead(const QString &version);
    /// A number as it came, in range or not.
    void parameterRead(const QString &key, double value);

private:
    bool open(QSerialPort *port, bool listen);
    void send(QSerialPort *port, const QString &text);
    void read(QSerialPort *port);
    void handleError(QSerialPort *port, int error);
    void handleMessage(const QString &message);
    void readParameters(const QString &message);

    std::chrono::milliseconds m_listeningTime;
    CurlyMessageParser m_parser;
    /// Names of the ports acquired so far.
    QStringList m_ports;
    bool m_busy = false;
};
