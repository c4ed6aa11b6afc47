#include "framework/settings/metadescriptor.h"

#include "framework/settings/metadescription.h"

using namespace Qt::StringLiterals;

void MetaDescriptor::set(QObject *object)
{
    m_object = object;
    parse();
}

QString MetaDescriptor::getClassName()
{
    return m_object ? QString::fromLatin1(m_object->metaObject()->className()) : QString();
}

void MetaDescriptor::parse()
{
    static const QString skipped = u"objectName"_s;
    const QMetaObject *meta = m_object->metaObject();
    for (int index = 0; index < meta->propertyCount(); ++index) {
        const QMetaProperty property = meta->property(index);
        if (!property.isWritable()
            || skipped.compare(QLatin1StringView(property.name()), Qt::CaseInsensitive) == 0)
            continue;
        auto *description = new MetaDescription(this);
        description->set(index, m_object);
        append(description);
    }
}
