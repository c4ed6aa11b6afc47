#pragma once

#include <QList>
#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>

class QTranslator;

/// The running language and its translators. Installing a language re-translates nothing that is already on
/// the screen: texts are translated when they are built. Main thread only; needs the application object.
///
/// A language name has five characters, as in "ru_RU".
class LanguageContext : public QObject
{
    Q_OBJECT

public:
    /// The singleton, built at the first use of any function below.
    static LanguageContext *Instance();

    /// Whether translation files beside the executable count too, not only those of the resources. Has to be
    /// said before the first use; off unless asked for.
    static void setSearchesApplicationFolder(bool enabled);

    /// The name of the system locale, as in "en_US"; "C" where none is set.
    static QString systemLanguage();
    static QStringList availableLanguages();
    static bool hasLanguage(const QString &language);
    /// Empty until a language is set.
    static QString currentLanguage();

    /// Installs the translators of \a language, or of the nearest language there is, on top of what is
    /// installed. The result is the language in force.
    static QString setLanguage(const QString &language);

    /// \a text in \a language, whatever is installed; \a text itself where that language has no answer.
    static QString translate(const QString &context, const QString &text, const QString &language);

    /// The text in each available language, and under an empty key the text itself.
    static QMap<QString, QString> multilingualTranslate(const QString &context, const QString &text);

    /// The language that a settings file holds, else Russian on a Russian system, else English.
    static QString AutoDetectLanguage(const QString &settingsFile);

private:
    LanguageContext();

    void findFiles(const QString &folder);
    void install(const QString &language);
    void loadAllLanguages();

    QMap<QString, QStringList> m_files;
    QString m_currentLanguage;
    QMap<QString, QList<QTranslator *>> m_loadedTranslators; // parented to this object
};
