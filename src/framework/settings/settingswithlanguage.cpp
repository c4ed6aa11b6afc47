#include "framework/settings/settingswithlanguage.h"

#include "framework/settings/languagecontext.h"

SettingsWithLanguage::SettingsWithLanguage(const QString &filepath, bool autoSave,
                                           const QStringList &languages, QObject *parent,
                                           NTSettingsFormat format)
    : NTSettings(filepath, autoSave, parent, format)
{
    // Later reloads must not connect a second time.
    connect(
        this, &NTSettings::reloaded, this, [this, languages] { offerLanguages(languages); },
        static_cast<Qt::ConnectionType>(Qt::AutoConnection | Qt::SingleShotConnection));
}

void SettingsWithLanguage::offerLanguages(const QStringList &languages)
{
    AbstractMetaDescription *description = getPropertyByName(QStringLiteral("Language"));
    description->enums = languages;
    const QString system = LanguageContext::systemLanguage();
    description->defaultText = languages.contains(system) ? system : languages.value(0);
    if (getLanguage().isEmpty())
        setLanguage(description->defaultText);
    LanguageContext::setLanguage(getLanguage());
    connect(this, &SettingsWithLanguage::changedLanguage, this, &SettingsWithLanguage::switchLanguage);
}

void SettingsWithLanguage::switchLanguage(const QString &language)
{
    if (!LanguageContext::hasLanguage(language))
        return;
    LanguageContext::setLanguage(language);
    if (m_restartNotice)
        m_restartNotice(tr("Language will be changed on program restart"));
}
