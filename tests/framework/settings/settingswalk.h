#pragma once

#include "framework/settings/ntsettings.h"

#include "files.h"

#include <QPoint>
#include <QSize>
#include <QTest>

/// Checks that hold for every property of every settings class, by its declaration alone.
namespace SettingsWalk {

using namespace Qt::StringLiterals;
using ::contents;

/// A legal value other than the present one; invalid for a type that this walk does not know.
inline QVariant otherValue(AbstractMetaDescription &property)
{
    const QVariant value = property.getValue();
    if (property.isEnumType()) {
        const QMetaEnum keys = property.enumerator();
        const QString first = QString::fromLatin1(keys.key(0));
        return value.toString() == first ? QString::fromLatin1(keys.key(1)) : first;
    }
    switch (value.typeId()) {
    case QMetaType::Bool:
        return !value.toBool();
    case QMetaType::Double:
        return property.hasMin ? property.min + property.step : 0.125;
    case QMetaType::Int:
        return property.hasMin && value.toInt() != int(property.min) ? int(property.min) : value.toInt() + 1;
    case QMetaType::UChar:
        return QVariant::fromValue(uchar(200));
    case QMetaType::QString:
        return u"\u0414\u0430 <&>\"' %1 \U0001F400"_s;
    case QMetaType::QByteArray:
        return QByteArray("\0\xff<", 3);
    case QMetaType::QPoint:
        return QPoint(-3, 4);
    case QMetaType::QPointF:
        return QPointF(-0.25, 1e-3);
    case QMetaType::QSize:
        return QSize(640, 480);
    default:
        return {};
    }
}

inline void changeAll(NTSettings &settings)
{
    const QStringList names = settings.getPropertiesNames();
    for (const QString &name : names) {
        AbstractMetaDescription &property = *settings.getPropertyByName(name);
        if (!property.editable)
            continue;
        const QVariant other = otherValue(property);
        QVERIFY2(other.isValid() && property.setValue(other), qPrintable(name));
    }
}

/// The declared default and limits hold in the members and in the setters.
inline void checkDefaultsAndLimits(NTSettings &settings)
{
    changeAll(settings);
    settings.loadDefaults();
    const QStringList names = settings.getPropertiesNames();
    for (const QString &name : names) {
        AbstractMetaDescription &property = *settings.getPropertyByName(name);
        if (!property.editable)
            continue;
        QVERIFY2(property.hasDefault, qPrintable(name));
        if (const QVariant value = property.getValue(); value.typeId() == QMetaType::Double)
            QCOMPARE(value.toDouble(), property.defaultText.toDouble());
        else if (value.canConvert<QString>() && value.typeId() != QMetaType::UChar)
            QCOMPARE(value.toString(), property.defaultText);
        if (property.hasMin && property.hasMax) {
            QVERIFY(property.setValue(property.max + 1) && property.getValue().toDouble() == property.max);
            QVERIFY(property.setValue(property.min - 1) && property.getValue().toDouble() == property.min);
        }
        property.setDefault();
    }
}

/// What \a source stores, \a target reads, and writes again byte by byte.
inline void checkRoundTrip(NTSettings &source, NTSettings &target)
{
    changeAll(source);
    source.save();
    QVERIFY(target.getQVariantMap() != source.getQVariantMap());
    target.setFilepath(source.getFilepath());
    QVERIFY(target.reload());
    QCOMPARE(target.getQVariantMap(), source.getQVariantMap());
    const QByteArray first = contents(source.getFilepath());
    target.save();
    QCOMPARE(contents(source.getFilepath()), first);
}

} // namespace SettingsWalk
