#include "framework/common/versioninfo.h"

#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

VersionInfo VersionInfo::fromJson(const QByteArray &reply)
{
    const QJsonObject object = QJsonDocument::fromJson(reply).object();
    return {object["valid"_L1].toBool(),  object["version"_L1].toString(),
            object["date"_L1].toString(), object["critical"_L1].toBool(),
            object["link"_L1].toString(), object["changelog"_L1].toString(),
            object["info"_L1].toString()};
}
