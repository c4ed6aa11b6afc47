#include "service/devicewriter.h"

#include "device/serialportmanager.h"
#include "framework/common/globalconsole.h"

#include <QDate>
#include <QLoggingCategory>
#include <QPointer>
#include <QSerialPort>
#include <QTimer>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(lcWriter, "spinbar.service.writer")

const QString Owner = u"UP"_s;
constexpr int WriteWaitMs = 1000;
constexpr int WireDigits = 6;

constexpr auto SerialNumberAnswer = "sn="_L1;
constexpr auto VersionAnswer = "version="_L1;
constexpr auto ParametersAnswer = "MCC:"_L1;

constexpr auto FailureColor = "red"_L1;
constexpr auto ProgressColor = "#3C0"_L1;
constexpr auto AnswerColor = "#159"_L1;

/// The console reads HTML, and answers as well as serial numbers may hold anything.
void log(const QString &text, const QString &color = {})
{
    QString html = text;
    html.replace('&'_L1, "&amp;"_L1).replace('<'_L1, "&lt;"_L1);
    GlobalConsole::writeLine(
        color.isEmpty() ? html : "<span style='color: "_L1 + color + "'>"_L1 + html + "</span>"_L1);
}

void configure(QSerialPort *port)
{
    port->setBaudRate(QSerialPort::Baud115200);
    port->setDataBits(QSerialPort::Data8);
    port->setParity(QSerialPort::NoParity);
    port->setStopBits(QSerialPort::OneStop);
    port->setFlowControl(QSerialPort::NoFlowControl);
}

} // namespace

DeviceWriter::DeviceWriter(QObject *parent, std::chrono::milliseconds listeningTime)
    : QObject(parent)
    , m_listeningTime(listeningTime)
{
    connect(&m_parser, &CurlyMessageParser::messageReceived, this, &DeviceWriter::handleMessage,
            Qt::QueuedConnection);
}

DeviceWriter::~DeviceWriter()
{
    for (const QString &name : m_ports)
        SerialPortManager::instance().releasePort(name, Owner);
}

bool DeviceWriter::transaction(const QString &portName, const QString &text, bool listen)
{
    if (m_busy)
        return false;
    log(">>"_L1 + portName + ": "_L1 + text);
    QSerialPort *port = SerialPortManager::instance().acquirePort(portName, Owner);
    if (!port) {
        log(u"Cannot connect"_s, FailureColor);
        return true;
    }
    if (!m_ports.contains(portName))
        m_ports.append(portName);
    configure(port);
    log(u"Starting transmission to "_s + portName, ProgressColor);
    m_busy = open(port, listen);
    if (m_busy)
        send(port, text);
    else
        log(u"Cannot connect to port "_s + portName, FailureColor);
    const auto end = [this, opened = m_busy] {
        log(u"End transmission"_s, ProgressColor);
        if (opened)
            m_busy = false;
    };
    if (!listen) {
        end();
        return true;
    }
    QTimer::singleShot(m_listeningTime, this, [end, portName, port = QPointer(port)] {
        // Another one that waited for the same port may have given it up.
        if (port)
            SerialPortManager::instance().releasePort(portName, Owner);
        qCDebug(lcWriter) << "END";
        end();
    });
    return true;
}

bool DeviceWriter::open(QSerialPort *port, bool listen)
{
    if (!port->open(listen ? QIODevice::ReadWrite : QIODevice::WriteOnly))
        return false;
    // After the opening, which is an error signal of its own.
    connect(
        port, &QSerialPort::errorOccurred, this,
        [this, port](QSerialPort::SerialPortError error) { handleError(port, error); }, Qt::QueuedConnection);
    if (listen) {
        // What an earlier answer was cut off at must not become the head of this one.
        m_parser.reset();
        connect(port, &QSerialPort::readyRead, this, [this, port] { read(port); });
    }
    return true;
}

void DeviceWriter::send(QSerialPort *port, const QString &text)
{
    log(u"PORT OPEN"_s);
    port->write(text.toUtf8());
    const bool written = port->waitForBytesWritten(WriteWaitMs);
    log(written ? u"Written? true"_s : u"Written? false"_s);
    log(u"Written"_s);
    log(u"MESSAGE WRITTEN"_s);
}

void DeviceWriter::read(QSerialPort *port)
{
    m_parser.parseText(QString::fromUtf8(port->readAll()));
}

void DeviceWriter::handleError(QSerialPort *port, int error)
{
    if (error == QSerialPort::NoError || error == QSerialPort::TimeoutError || !port->isOpen())
        return;
    // A port that vanished would repeat its signal without an end.
    log(u"Connection lost: "_s + port->errorString(), FailureColor);
    port->close();
}

void DeviceWriter::handleMessage(const QString &message)
{
    if (message.startsWith("S,"_L1) || message.startsWith("R,"_L1))
        return;
    log(message, AnswerColor);
    if (message.startsWith(SerialNumberAnswer))
        emit serialNumberRead(message.sliced(SerialNumberAnswer.size()));
    else if (message.startsWith(VersionAnswer))
        emit versionRead(message.sliced(VersionAnswer.size()));
    else if (message.startsWith(ParametersAnswer))
        readParameters(message);
}

void DeviceWriter::readParameters(const QString &message)
{
    const QStringList pairs = message.split(u',');
    for (const QString &pair : pairs) {
        const QStringList pieces = pair.split(u':');
        const auto parameter =
            std::find_if(parameters().begin(), parameters().end(), [&](const DeviceParameter &known) {
                return pieces.size() == 2 && pieces[0] == QLatin1StringView(known.key);
            });
        if (parameter == parameters().end())
            continue;
        bool isNumber = false;
        const double value = pieces[1].toDouble(&isNumber);
        if (!isNumber || !std::isfinite(value)) {
            log(u"Not a number: "_s + pair, FailureColor);
            continue;
        }
        if (value < parameter->lowest || value > parameter->highest)
            log(u"Out of range: "_s + pair, FailureColor);
        emit parameterRead(pieces[0], value);
    }
}

bool DeviceWriter::readAll(const QString &portName)
{
    return transaction(portName, u"{whois}{version}{sn}{getSettings}"_s, true);
}

bool DeviceWriter::writeParameter(const QString &portName, const DeviceParameter &parameter, double value)
{
    const QString frame = '{'_L1 + QLatin1StringView(parameter.setter) + '='_L1
                          + QString::number(value, 'g', WireDigits) + '}'_L1;
    return transaction(portName, frame, false);
}

bool DeviceWriter::writeSerialNumber(const QString &portName, const QString &serialNumber)
{
    return transaction(portName, "{writesn="_L1 + serialNumber + '}'_L1, false);
}

const QList<DeviceParameter> &DeviceWriter::parameters()
{
    static const QList<DeviceParameter> all{
        {QT_TRANSLATE_NOOP("SpinbarWriterWidget", "MotorCoeff"), "setMotorCoeff", "MCC", 0.5, 2, 0.01,
         QT_TRANSLATE_NOOP("SpinbarWriterWidget", "Motor calibration coeffient - a multiplier of speed")},
        {QT_TRANSLATE_NOOP("SpinbarWriterWidget", "MotorAcc"), "setMotorAcc", "MAC", 0.5, 2, 0.01,
         QT_TRANSLATE_NOOP("SpinbarWriterWidget", "Motor acceleration coeffient, RPM")},
        {QT_TRANSLATE_NOOP("SpinbarWriterWidget", "MotorDec"), "setMotorDec", "MDC", 0.5, 2, 0.01,
         QT_TRANSLATE_NOOP("SpinbarWriterWidget", "Motor deceleration coeffient, RPM")},
        {QT_TRANSLATE_NOOP("SpinbarWriterWidget", "CurrentCoeff"), "setCurrentCoeff", "CUR", 1, 20, 0.01,
         QT_TRANSLATE_NOOP("SpinbarWriterWidget", "Current coefficient, mA - max current for the 255 value")},
    };
    return all;
}

QStringList DeviceWriter::choices(const QList<PortInfo> &ports)
{
    QStringList texts;
    for (const PortInfo &port : ports) {
        if (!port.description.contains("Bluetooth"_L1))
            texts += port.name + '['_L1 + port.description + ']'_L1;
    }
    return texts;
}

QString DeviceWriter::portName(const QString &choice)
{
    return choice.section(u'[', 0, 0).trimmed();
}

QString DeviceWriter::newSerialNumber(const QDate &date)
{
    return "B4"_L1 + date.toString(u"yyMM"_s) + "101"_L1;
}
