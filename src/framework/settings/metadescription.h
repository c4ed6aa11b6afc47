#pragma once

#include "framework/settings/abstractmetadescription.h"

#include <QMetaProperty>
#include <QPointer>

/// A description that is read from a property of an object and the class-info around it.
class MetaDescription : public AbstractMetaDescription
{
    Q_OBJECT

public:
    using AbstractMetaDescription::AbstractMetaDescription;

    /// Reads the declaration of the property with the meta-object's \a index.
    void set(int index, QObject *object);

    /// Reads "QPoint(1, 2)", "QSize(1, 2)" or "1,2"; false leaves \a a and \a b untouched.
    static bool parsePointOrSize(const QString &text, double &a, double &b);

    QMetaEnum enumerator() override;
    bool isEnumType() override;

public Q_SLOTS:
    bool setValue(const QVariant &value) override;
    QVariant getValue() override;
    void setDefault() override;
    void valueChangedSlot() override;
    bool setTextValue(const QString &value) override;

private:
    int clindex(const QString &key) const;
    QMetaClassInfo clinfo(const QString &key) const;
    QString stringForAlias(const QString &key) const;
    bool assignDouble(double &target, QString &text) const;
    QMetaProperty metaprop() const;

    void readDefault();
    void readBounds();
    void readExtras();
    void readSpecialType();
    void callDefaultFunction(const QString &function);

    int m_index = -1;
    QPointer<QObject> m_object;
};
