#pragma once

#include <QHash>
#include <QList>
#include <QStringList>

class AbstractMetaDescription;
class AbstractMetaDescriptor;

/// The properties that a form may show, sorted by category and within it by priority and caption. It knows
/// those that are editable and visible when it is built.
class CategoryIndex
{
public:
    void build(const AbstractMetaDescriptor &descriptor);

    /// Ascending, the null name last.
    const QStringList &categories() const { return m_categories; }
    bool hasCategory(const QString &category) const { return m_byCategory.contains(category); }
    QList<AbstractMetaDescription *> descriptions(const QString &category) const;
    /// Null for a property that is not in the index.
    AbstractMetaDescription *description(const QString &name) const;

private:
    QHash<QString, QList<AbstractMetaDescription *>> m_byCategory;
    QHash<QString, AbstractMetaDescription *> m_byName;
    QStringList m_categories;
};
