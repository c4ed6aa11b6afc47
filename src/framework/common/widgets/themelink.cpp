#include "framework/common/widgets/themelink.h"

#include "framework/common/colortheme.h"
#include "framework/common/widgets/stylehelper.h"

#include <QMetaMethod>
#include <QMetaProperty>
#include <QVariant>

using namespace Qt::StringLiterals;

namespace {

bool equals(const QVariant &value, StyleHelper::ColorThemeEnum theme)
{
    bool isNumber = false;
    const int number = value.toInt(&isNumber);
    return isNumber && number == theme;
}

} // namespace

ThemeLink::ThemeLink(QObject *settings, const QString &property)
    : QObject(settings)
    , m_property(property)
{
    connectSettings();
    connect(&m_system, &SystemScheme::changed, this, &ThemeLink::onSystemChanged);
    apply();
}

bool ThemeLink::wantsDark(const QVariant &value, bool systemDark)
{
    if (equals(value, StyleHelper::System))
        return systemDark;
    return equals(value, StyleHelper::Dark) || value.toString().contains("dark"_L1, Qt::CaseInsensitive);
}

void ThemeLink::connectSettings()
{
    const QMetaObject *meta = parent()->metaObject();
    if (const int signal = meta->indexOfSignal("propertyChanged(QString)"); signal >= 0) {
        const int slot = staticMetaObject.indexOfSlot("onPropertyChanged(QString)");
        connect(parent(), meta->method(signal), this, staticMetaObject.method(slot));
        return;
    }
    const QMetaProperty property = meta->property(meta->indexOfProperty(m_property.toLatin1().constData()));
    if (property.hasNotifySignal())
        connect(parent(), property.notifySignal(), this,
                staticMetaObject.method(staticMetaObject.indexOfSlot("apply()")));
}

void ThemeLink::onPropertyChanged(const QString &name)
{
    if (name == m_property)
        apply();
}

void ThemeLink::onSystemChanged()
{
    if (equals(value(), StyleHelper::System))
        apply();
}

void ThemeLink::apply()
{
    const bool dark = wantsDark(value(), SystemScheme::isDark());
    StyleHelper::Instance()->selectTheme(dark ? u"dark"_s : u"light"_s);
}

QVariant ThemeLink::value() const
{
    return parent()->property(m_property.toLatin1().constData());
}
