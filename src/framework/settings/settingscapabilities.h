#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

class AbstractMetaDescription;

/// A property's metadata in forms that another process can read.
namespace SettingsCapabilities {

/// Keys are left out where they have nothing to say.
QJsonObject toJson(AbstractMetaDescription &description);

/// An older form: one text such as "min"="0" for each fact.
QStringList toLines(AbstractMetaDescription &description);

/// A suffix or prefix in the running language: "!-" in front keeps the rest as it is, and a leading blank
/// is kept out of the text that is looked up.
QString translatedAffix(const QString &text);

} // namespace SettingsCapabilities
