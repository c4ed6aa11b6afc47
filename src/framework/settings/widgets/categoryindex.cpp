#include "framework/settings/widgets/categoryindex.h"

#include "framework/settings/abstractmetadescriptor.h"

#include <algorithm>

namespace {

bool comesBefore(const AbstractMetaDescription *a, const AbstractMetaDescription *b)
{
    if (a->priority != b->priority)
        return a->priority < b->priority;
    return a->displayName < b->displayName;
}

bool categoryComesBefore(const QString &a, const QString &b)
{
    if (a.isNull() || b.isNull())
        return !a.isNull() && b.isNull();
    return a < b;
}

} // namespace

void CategoryIndex::build(const AbstractMetaDescriptor &descriptor)
{
    m_byCategory.clear();
    m_byName.clear();
    for (AbstractMetaDescription *description : descriptor.descriptions()) {
        if (!description->editable || !description->visible)
            continue;
        m_byCategory[description->category].append(description);
        m_byName.insert(description->name, description);
    }
    m_categories = m_byCategory.keys();
    std::sort(m_categories.begin(), m_categories.end(), categoryComesBefore);
    for (auto &descriptions : m_byCategory)
        std::stable_sort(descriptions.begin(), descriptions.end(), comesBefore);
}

QList<AbstractMetaDescription *> CategoryIndex::descriptions(const QString &category) const
{
    return m_byCategory.value(category);
}

AbstractMetaDescription *CategoryIndex::description(const QString &name) const
{
    return m_byName.value(name, nullptr);
}
