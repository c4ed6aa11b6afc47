#include "device/curlydevice.h"
#include "device/linklog.h"

#include <QDate>
#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace {

constexpr auto SerialPrefix = "sn="_L1;
constexpr auto VersionPrefix = "version="_L1;
constexpr auto ShortVersionPrefix = "v="_L1;

constexpr int FirstRandomSerial = 101;
constexpr int RandomSerials = 898;

// An instrument fresh from production has no serial number of its own.
bool isBlank(const QString &message)
{
    return message == "sn=000000"_L1 || message.startsWith("sn=yy"_L1) || message == SerialPrefix;
}

} // namespace

bool CurlyDevice::handleIdentity(const QString &message)
{
    if (message.startsWith(SerialPrefix))
        handleSerialNumber(message);
    else if (message.startsWith(VersionPrefix))
        setVersion(message.sliced(VersionPrefix.size()));
    else if (message.startsWith(ShortVersionPrefix))
        setVersion(message.sliced(ShortVersionPrefix.size()));
    else
        return false;
    return true;
}

void CurlyDevice::handleSerialNumber(const QString &message)
{
    qCInfo(lcLink).noquote() << deviceType() << "serial" << message;
    if (isBlank(message)) {
        send(u"writesn="_s + newSerialNumber());
        return;
    }
    send(u"version"_s);
    m_serialNumber = message.sliced(SerialPrefix.size());
    emit gotSerialNumber(m_serialNumber);
}

void CurlyDevice::setVersion(const QString &version)
{
    m_version = version;
    emit gotVersion(version);
}

QString CurlyDevice::drawSerialNumber(const QString &kind)
{
    const quint64 random = QRandomGenerator::global()->generate();
    const int drawn = static_cast<int>((random * RandomSerials) >> 32) + FirstRandomSerial;
    return kind + QDate::currentDate().toString(u"yyMM"_s) + QString::number(drawn);
}
