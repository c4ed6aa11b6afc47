#include "framework/settings/abstractsettings.h"

QVariant AbstractSettings::getValue(const QString & /*name*/)
{
    return {};
}
