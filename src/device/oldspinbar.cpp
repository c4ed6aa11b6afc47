#include "device/oldspinbar.h"

#include "device/curlycodec.h"
#include "device/linklog.h"

#include <QSerialPort>

using namespace Qt::StringLiterals;

namespace {

constexpr int OldBaudRate = 125000;
// The third byte brings the sum of the greeting to zero modulo 256.
constexpr char Greeting[] = {'\xF1', '\x00', '\x0F'};

} // namespace

QString OldSpinbar::deviceType() const
{
    return u"OldSpinbar"_s;
}

QString OldSpinbar::newSerialNumber() const
{
    return u""_s;
}

QString OldSpinbar::greetingReply() const
{
    return u""_s;
}

int OldSpinbar::baudRate() const
{
    return OldBaudRate;
}

int OldSpinbar::parity() const
{
    return QSerialPort::EvenParity;
}

int OldSpinbar::stopBits() const
{
    return QSerialPort::OneStop;
}

int OldSpinbar::dataBits() const
{
    return QSerialPort::Data8;
}

QByteArray OldSpinbar::binaryGreeting() const
{
    return QByteArray(Greeting, sizeof Greeting);
}

bool OldSpinbar::usesTextProtocol() const
{
    return false;
}

void OldSpinbar::onTextMessage(const QString &message)
{
    Q_UNUSED(message)
    qCInfo(lcLink) << "CANNOT USE STRING PARSE IN OLD SPINBAR";
}

void OldSpinbar::onByteMessage(const QByteArray &message)
{
    qCInfo(lcLink).noquote() << "OLD SPB" << message.toHex();
}

bool OldSpinbar::checkBinaryGreeting(const QByteArray &bytes) const
{
    qCInfo(lcLink).noquote() << "Parsing greeting" << bytes.toHex();
    return CurlyCodec::decodeFrame(bytes).startsWith(Greeting[0]);
}
