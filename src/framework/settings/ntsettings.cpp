#include "framework/settings/ntsettings.h"

#include "framework/settings/metadescriptor.h"
#include "framework/settings/settingscapabilities.h"

#include "framework/common/fileutilities.h"

#include <QFileInfo>
#include <QScopedValueRollback>
#include <QXmlStreamWriter>

using namespace Qt::StringLiterals;

NTSettings::NTSettings(const QString &filepath, bool autoSave, QObject *parent, NTSettingsFormat format)
    : AbstractSettings(parent)
{
    setFilepath(filepath);
    m_autoSave = autoSave;
    m_format = format;
}

NTSettings::~NTSettings() = default;

void NTSettings::setFilepath(const QString &path)
{
    if (!path.isEmpty())
        FileUtilities::createIfNotExists(QFileInfo(path).absolutePath());
    m_filepath = path;
    Q_EMIT filePathChanged();
}

bool NTSettings::reload()
{
    if (m_filepath.isEmpty())
        return false;
    {
        // A slot may reload once more while this one still runs.
        const QScopedValueRollback reloading(m_reloading, true);
        if (m_format == XML)
            metaDescriptor()->load(m_filepath);
        else
            metaDescriptor()->loadFromJsonFile(m_filepath);
    }
    Q_EMIT reloaded();
    return true;
}

void NTSettings::save()
{
    saveAs(m_filepath);
    Q_EMIT saved();
}

void NTSettings::saveAs(const QString &path)
{
    if (path.isEmpty())
        return;
    if (m_format == XML)
        metaDescriptor()->save(path);
    else
        metaDescriptor()->saveToJsonFile(path);
}

void NTSettings::loadDefaults()
{
    metaDescriptor()->defaults();
    Q_EMIT reloaded();
}

bool NTSettings::loadFromXMLString(const QString &text)
{
    metaDescriptor()->loadFromXmlString(text);
    Q_EMIT reloaded();
    return true;
}

bool NTSettings::loadFromJson(const QByteArray &bytes)
{
    return metaDescriptor()->loadFromJson(bytes);
}

bool NTSettings::loadFromJson(const QJsonDocument &document)
{
    return metaDescriptor()->loadFromJson(document);
}

bool NTSettings::loadFromJson(const QJsonObject &object)
{
    return metaDescriptor()->loadFromJson(object);
}

bool NTSettings::loadFromJson(const QString &text)
{
    return metaDescriptor()->loadFromJson(text);
}

bool NTSettings::loadFromQVariantMap(const QVariantMap &map)
{
    return metaDescriptor()->loadFromQVariantMap(map);
}

QString NTSettings::saveToString()
{
    return metaDescriptor()->saveAsXmlString();
}

QJsonObject NTSettings::saveToJson()
{
    return metaDescriptor()->saveToJson();
}

QString NTSettings::saveToJsonString(QJsonDocument::JsonFormat format)
{
    return metaDescriptor()->saveToJsonString(format);
}

QString NTSettings::saveToJsonByteArray()
{
    return saveToJsonString(QJsonDocument::Compact);
}

QVariantMap NTSettings::getQVariantMap()
{
    return metaDescriptor()->getQVariantMap();
}

QString NTSettings::getClassName()
{
    return metaDescriptor()->getClassName();
}

QStringList NTSettings::getPropertiesNames()
{
    QStringList names;
    for (const AbstractMetaDescription *description : metaDescriptor()->descriptions())
        names.append(description->name);
    return names;
}

AbstractMetaDescription *NTSettings::getPropertyByName(const QString &name)
{
    return metaDescriptor()->propertyByName(name);
}

QString NTSettings::getTextValue(const QString &name)
{
    return getValue(name).toString();
}

bool NTSettings::setTextValue(const QString &name, const QString &text)
{
    AbstractMetaDescription *description = getPropertyByName(name);
    return description && description->setTextValue(text);
}

QJsonArray NTSettings::getAllCapabilitiesJson(bool all)
{
    QJsonArray properties;
    for (AbstractMetaDescription *description : metaDescriptor()->descriptions()) {
        if (all || (description->visible && description->editable))
            properties.append(SettingsCapabilities::toJson(*description));
    }
    return properties;
}

QStringList NTSettings::getAllCapabilities()
{
    QStringList lines;
    for (AbstractMetaDescription *description : metaDescriptor()->descriptions())
        lines += SettingsCapabilities::toLines(*description);
    return lines;
}

QStringList NTSettings::getPropertyCapabilities(const QString &name)
{
    AbstractMetaDescription *description = getPropertyByName(name);
    return description ? SettingsCapabilities::toLines(*description) : QStringList();
}

AbstractMetaDescriptor *NTSettings::metaDescriptor()
{
    if (!m_descriptor) {
        m_descriptor = std::make_unique<MetaDescriptor>();
        m_descriptor->set(this);
    }
    return m_descriptor.get();
}

QVariant NTSettings::getValue(const QString &name)
{
    AbstractMetaDescription *description = getPropertyByName(name);
    return description ? description->getValue() : QVariant();
}

bool NTSettings::setValue(const QString &name, const QVariant &value)
{
    AbstractMetaDescription *description = getPropertyByName(name);
    return description && description->setValue(value);
}

bool NTSettings::containsProperty(const QString &name)
{
    return getPropertyByName(name) != nullptr;
}

bool NTSettings::toogleItemInStringList(QStringList &list, const QString &item, bool add)
{
    const QString trimmed = item.trimmed();
    if (trimmed.isEmpty())
        return false;
    if (!add)
        return list.removeOne(trimmed);
    if (list.contains(trimmed))
        return false;
    list.append(trimmed);
    return true;
}

void NTSettings::changedProperty(const QString &name)
{
    Q_EMIT propertyChanged(name);
    if (!m_autoSave || m_reloading)
        return;
    saveAs(m_filepath);
    Q_EMIT saved();
}

QString NTSettings::writeComponentsToString(const QList<NTSettings *> &components)
{
    QString text;
    QXmlStreamWriter writer(&text);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement(u"Component"_s);
    for (NTSettings *component : components)
        component->metaDescriptor()->saveXmlContent(writer);
    writer.writeEndElement();
    writer.writeEndDocument();
    return text;
}
