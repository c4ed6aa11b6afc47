#pragma once

#include "framework/settings/abstractmetadescriptor.h"

#include <QObject>
#include <QVariant>

/// An object that describes its properties, which forms and storage work on.
class AbstractSettings : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    virtual AbstractMetaDescriptor *metaDescriptor() = 0;
    virtual QVariant getValue(const QString &name);
    virtual bool setValue(const QString &name, const QVariant &value) = 0;

Q_SIGNALS:
    /// Follows the property's own change signal.
    void propertyChanged(const QString &name);
};
