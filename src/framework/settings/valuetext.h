#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

using StringMap = QMap<QString, QString>;

/// The text of a property's value inside a settings file, by the type name of the property.
namespace ValueText {

/// True for a property that is written as child elements instead of a text.
bool isStringMap(const QString &type);

/// Points and sizes are two numbers with ";" between them, bytes are base64, enumerations their names.
QString toText(const QString &type, const QVariant &value);

/// The inverse. Types without a form of their own come back as the text, which the property converts.
QVariant fromText(const QString &type, const QString &text);

/// Cuts the decimals and brings the result into the range of int; not-a-number is 0.
int cutToInt(double value);

} // namespace ValueText
