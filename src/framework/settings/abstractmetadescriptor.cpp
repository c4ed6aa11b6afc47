#include "framework/settings/abstractmetadescriptor.h"

#include <algorithm>

AbstractMetaDescription *AbstractMetaDescriptor::at(int index) const
{
    return m_descriptions.value(index, nullptr);
}

int AbstractMetaDescriptor::count() const
{
    return static_cast<int>(m_descriptions.size());
}

AbstractMetaDescription *AbstractMetaDescriptor::propertyByName(const QString &name) const
{
    return m_byName.value(name, nullptr);
}

void AbstractMetaDescriptor::defaults()
{
    for (AbstractMetaDescription *description : std::as_const(m_descriptions)) {
        if (description->editable && description->hasDefault)
            description->setDefault();
    }
}

QVariantMap AbstractMetaDescriptor::getQVariantMap() const
{
    QVariantMap map;
    for (AbstractMetaDescription *description : m_descriptions) {
        if (description->editable)
            map.insert(description->name, description->getValue());
    }
    return map;
}

QMap<QString, QString> AbstractMetaDescriptor::getPropertiesNameAndType() const
{
    QMap<QString, QString> types;
    for (const AbstractMetaDescription *description : m_descriptions)
        types.insert(description->name, description->type);
    return types;
}

bool AbstractMetaDescriptor::setValue(const QString &name, const QVariant &value)
{
    AbstractMetaDescription *description = find(name, false);
    return description && description->setValue(value);
}

bool AbstractMetaDescriptor::setTextValue(const QString &name, const QString &text)
{
    AbstractMetaDescription *description = find(name, false);
    return description && description->setTextValue(text);
}

bool AbstractMetaDescriptor::loadFromQVariantMap(const QVariantMap &map)
{
    for (AbstractMetaDescription *description : std::as_const(m_descriptions)) {
        if (const auto found = map.constFind(description->name);
            description->editable && found != map.constEnd())
            description->setValue(*found);
    }
    return true;
}

void AbstractMetaDescriptor::clear()
{
    m_descriptions.clear();
    m_byName.clear();
}

void AbstractMetaDescriptor::append(AbstractMetaDescription *description)
{
    m_descriptions.append(description);
    m_byName.insert(description->name, description);
}

AbstractMetaDescription *AbstractMetaDescriptor::find(QStringView name, bool editableOnly) const
{
    const auto found =
        std::find_if(m_descriptions.cbegin(), m_descriptions.cend(), [&](const auto *description) {
            return description->name == name && (description->editable || !editableOnly);
        });
    return found == m_descriptions.cend() ? nullptr : *found;
}
