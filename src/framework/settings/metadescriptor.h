#pragma once

#include "framework/settings/abstractmetadescriptor.h"

#include <QPointer>

/// The descriptor of an object by its meta-object, inherited properties too.
class MetaDescriptor : public AbstractMetaDescriptor
{
    Q_OBJECT

public:
    using AbstractMetaDescriptor::AbstractMetaDescriptor;

    void set(QObject *object) override;
    QString getClassName() override;

private:
    void parse();

    QPointer<QObject> m_object;
};
