#pragma once

#include "framework/common/widgets/systemscheme.h"

#include <QObject>
#include <QString>

/// Keeps the theme in step with one property of a settings object, whose child it is. It knows the object by
/// its meta-object only: the signal "propertyChanged(QString)" if there is one, else the property's own.
class ThemeLink : public QObject
{
    Q_OBJECT

public:
    ThemeLink(QObject *settings, const QString &property);

    /// What a value of the property asks for: 0 follows the system, 2 or a text with "dark" is dark, all else
    /// light.
    static bool wantsDark(const QVariant &value, bool systemDark);

private slots:
    void onPropertyChanged(const QString &name);
    void apply();

private:
    void connectSettings();
    void onSystemChanged();
    QVariant value() const;

    QString m_property;
    SystemScheme m_system;
};
