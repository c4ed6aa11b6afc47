#pragma once

#include <QMap>
#include <QMetaEnum>
#include <QObject>
#include <QStringList>
#include <QVariant>

#include <limits>

/// What is known of one property: the public fields are the declaration, read once; the operations go to
/// the property itself each time. Views and storage work on descriptions and know no settings class.
class AbstractMetaDescription : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    static constexpr int NoPriority = std::numeric_limits<int>::max();

    QString defaultText;                 ///< the default as text, valid only if hasDefault
    double min = 0;                      ///< valid only if hasMin
    double max = 0;                      ///< valid only if hasMax
    double step = 0;                     ///< valid only if hasStep
    QString type;                        ///< type name, "Enum" for an enumeration with a default
    QString displayName;                 ///< untranslated caption
    QMap<QString, QString> visibleBound; ///< other property's name to the condition on its text
    QString name;
    QString category;       ///< untranslated; null if none
    QString pickOption;     ///< specialType up to its first ":"
    QString pickExtensions; ///< specialType behind its first ":"
    QString specialType;
    QString suffix{QLatin1String("")};
    QString prefix{QLatin1String("")};
    QStringList enums; ///< choices for a string or index property, set by code
    QString icon{QLatin1String("")};
    QMap<QString, QString> extras; ///< "Description", "Placeholder", "Precision", "Suggestions", if given
    int typeId = 0;
    int priority = NoPriority; ///< sort key within the category
    bool showDefault = true;
    bool readOnly = false;
    bool editable = false; ///< persisted, reset with the defaults, and considered for the form
    bool visible = false;
    bool hasMin = false;
    bool hasMax = false;
    bool hasDefault = false;
    bool hasStep = false;
    bool hasSpecialType = false;

    virtual QMetaEnum enumerator() = 0;
    virtual bool isEnumType() = 0;

public Q_SLOTS:
    /// Writes the property; text is converted to its type. False if that fails.
    virtual bool setValue(const QVariant &value) = 0;
    virtual QVariant getValue() = 0;
    /// Resets the property, and takes over its text as the default. Always signals, if there is a default.
    virtual void setDefault() = 0;
    virtual void valueChangedSlot() = 0;
    /// As setValue, reading points and sizes from texts such as "QPoint(3,4)" or "3,4".
    virtual bool setTextValue(const QString &value) = 0;

Q_SIGNALS:
    void valueChanged(const QVariant &value);
};
