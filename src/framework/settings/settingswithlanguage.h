#pragma once

#include "framework/settings/ntsettings.h"

#include <functional>

/// Settings whose language is a name among those given; it takes effect at the first reload.
class SettingsWithLanguage : public NTSettings
{
    Q_OBJECT
    NT_PROPERTY(QString, Language, "")
    Q_CLASSINFO("LanguageSpecialType", "StringList")

public:
    using Notice = std::function<void(const QString &text)>;

    SettingsWithLanguage(const QString &filepath, bool autoSave, const QStringList &languages,
                         QObject *parent, NTSettingsFormat format);

    /// Shows the operator that a restart is needed; AppHelper::warningMessage where there is a screen.
    void setRestartNotice(const Notice &notice) { m_restartNotice = notice; }

private:
    void offerLanguages(const QStringList &languages);
    void switchLanguage(const QString &language);

    Notice m_restartNotice;
};
