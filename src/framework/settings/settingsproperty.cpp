#include "framework/settings/settingsproperty.h"

#include <QCoreApplication>

QString SettingsProperty::caption(const char *name)
{
    return QCoreApplication::translate("Generic", name);
}
