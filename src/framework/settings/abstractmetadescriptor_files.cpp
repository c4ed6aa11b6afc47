#include "framework/settings/abstractmetadescriptor.h"

#include "framework/settings/valuetext.h"

#include "framework/common/fileutilities.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(settingsLog, "spinbar.settings")

bool writeFile(const QString &path, const QByteArray &bytes)
{
    QString error;
    switch (FileUtilities::overwrite(path, bytes, &error)) {
    case FileUtilities::WriteResult::Whole:
        break;
    case FileUtilities::WriteResult::InPart:
        qCWarning(settingsLog) << "Written in part only" << path << error;
        break;
    case FileUtilities::WriteResult::NotOpened:
        qCWarning(settingsLog) << "Cannot write" << path << error;
        return false;
    }
    return true;
}

std::optional<QString> readFile(const QString &path)
{
    // Opening a pipe of that name would wait for its other end.
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll());
}

void writeStringMap(QXmlStreamWriter &writer, const AbstractMetaDescription &description,
                    const QVariant &value)
{
    const auto map = value.value<StringMap>();
    writer.writeStartElement(description.name);
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry)
        writer.writeTextElement(entry.key(), entry.value());
    writer.writeEndElement();
}

QString plainText(const QString &type, const QVariant &value)
{
    return type == "QByteArray"_L1 ? ValueText::toText(type, value) : value.toString();
}

using TextOf = QString (*)(const QString &, const QVariant &);

void writeObject(QXmlStreamWriter &writer, AbstractMetaDescriptor &descriptor, TextOf textOf)
{
    writer.writeStartElement(descriptor.getClassName());
    for (AbstractMetaDescription *description : descriptor.descriptions()) {
        if (!description->editable)
            continue;
        const QVariant value = description->getValue();
        if (ValueText::isStringMap(description->type))
            writeStringMap(writer, *description, value);
        else
            writer.writeTextElement(description->name, textOf(description->type, value));
    }
    writer.writeEndElement();
}

} // namespace

bool AbstractMetaDescriptor::save(const QString &file)
{
    return writeFile(file, saveAsXmlString().toUtf8());
}

QString AbstractMetaDescriptor::saveAsXmlString()
{
    QString text;
    QXmlStreamWriter writer(&text);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writeObject(writer, *this, &ValueText::toText);
    writer.writeEndDocument();
    return text;
}

void AbstractMetaDescriptor::saveXmlContent(QXmlStreamWriter &writer)
{
    writeObject(writer, *this, &plainText);
}

bool AbstractMetaDescriptor::saveToJsonFile(const QString &file)
{
    return writeFile(file, saveToJsonByteArray());
}

QJsonObject AbstractMetaDescriptor::saveToJson()
{
    return QJsonObject::fromVariantMap(getQVariantMap());
}

QString AbstractMetaDescriptor::saveToJsonString(QJsonDocument::JsonFormat format)
{
    return QString::fromUtf8(saveToJsonByteArray(format));
}

QByteArray AbstractMetaDescriptor::saveToJsonByteArray(QJsonDocument::JsonFormat format)
{
    return QJsonDocument(saveToJson()).toJson(format);
}

bool AbstractMetaDescriptor::load(const QString &file)
{
    const std::optional<QString> text = readFile(file);
    return text && loadFromXmlString(*text);
}

// The children of an unknown element are looked at in turn. Setters save the file when saving is not held
// back, so the text is complete in memory before the first of them runs.
bool AbstractMetaDescriptor::loadFromXmlString(const QString &text)
{
    QXmlStreamReader reader(text);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        AbstractMetaDescription *description = find(reader.name(), true);
        if (!description)
            continue;
        const QString value = reader.readElementText();
        if (!reader.hasError())
            description->setValue(ValueText::fromText(description->type, value));
    }
    if (reader.hasError())
        qCInfo(settingsLog) << "Read in part only:" << reader.errorString();
    return true;
}

void AbstractMetaDescriptor::loadXmlContent(const QString &endElementName, QXmlStreamReader &reader)
{
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == endElementName)
            return;
        AbstractMetaDescription *description = find(reader.name(), true);
        if (!description)
            continue;
        const QString value = reader.readElementText();
        if (reader.hasError())
            return;
        if (description->type == "QByteArray"_L1)
            description->setValue(FileUtilities::base64_decode_as_bytes(value));
        else
            description->setValue(value);
    }
}

bool AbstractMetaDescriptor::loadFromJsonFile(const QString &file)
{
    const std::optional<QString> text = readFile(file);
    return text && loadFromJson(*text);
}

bool AbstractMetaDescriptor::loadFromJson(const QString &text)
{
    return !text.isEmpty() && loadFromJson(text.toUtf8());
}

bool AbstractMetaDescriptor::loadFromJson(const QByteArray &bytes)
{
    return !bytes.isEmpty() && loadFromJson(QJsonDocument::fromJson(bytes));
}

bool AbstractMetaDescriptor::loadFromJson(const QJsonDocument &document)
{
    if (document.isEmpty())
        return false;
    if (document.isNull()) {
        qDebug() << "Failed to create JSON doc." << Q_FUNC_INFO;
        return false;
    }
    if (!document.isObject()) {
        qDebug() << "JSON is not an object." << Q_FUNC_INFO;
        return false;
    }
    return loadFromJson(document.object());
}

bool AbstractMetaDescriptor::loadFromJson(const QJsonObject &object)
{
    if (object.isEmpty()) {
        qDebug() << "JSON object is empty" << Q_FUNC_INFO;
        return false;
    }
    return loadFromQVariantMap(object.toVariantMap());
}
