#include "framework/settings/languagecontext.h"
#include "framework/settings/settingswithlanguage.h"
#include "framework/settings/startlanguage.h"

#include "files.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString writtenSettings(const QTemporaryDir &folder, const QString &text)
{
    const QString path = folder.filePath(u"Settings.xml"_s);
    return writeFile(path, text.toUtf8()) ? path : QString();
}

} // namespace

class TestLanguageContext : public QObject
{
    Q_OBJECT

private slots:
    void resourcesHoldTwoLanguages()
    {
        QCOMPARE(LanguageContext::availableLanguages(), QStringList({u"en_US"_s, u"ru_RU"_s}));
        QVERIFY(LanguageContext::hasLanguage(u"ru_RU"_s));
        QVERIFY(!LanguageContext::hasLanguage(u"ru-RU"_s));
        QCOMPARE(LanguageContext::currentLanguage(), QString());
    }

    void textIsTranslatedIntoALanguageThatIsNotInstalled()
    {
        const auto save = [](const QString &language, const QString &context = u"Generic"_s) {
            return LanguageContext::translate(context, u"Save"_s, language);
        };
        QCOMPARE(save(u"ru_RU"_s), u"Сохранить"_s);
        QCOMPARE(save(u"ru-RU"_s), u"Сохранить"_s);
        QCOMPARE(LanguageContext::translate(u"MainWindow"_s, u"Записи"_s, u"en_US"_s), u"Records"_s);
        QCOMPARE(LanguageContext::translate(u"QPlatformTheme"_s, u"Cancel"_s, u"ru_RU"_s), u"Отмена"_s);
        QCOMPARE(save(u"ru_RU"_s, u"Nowhere"_s), u"Save"_s);
        for (const QString &without : {u"en_US"_s, u"de_DE"_s, u"-d-e-"_s, QString()})
            QCOMPARE(save(without), u"Save"_s);
        const QMap<QString, QString> all{
            {QString(), u"Language"_s}, {u"en_US"_s, u"Language"_s}, {u"ru_RU"_s, u"Язык"_s}};
        QCOMPARE(LanguageContext::multilingualTranslate(u"Generic"_s, u"Language"_s), all);
        QCOMPARE(QCoreApplication::translate("Generic", "Save"), u"Save"_s);
    }

    void missingLanguageIsReplacedByTheNearest()
    {
        const auto nearest = [](const QString &system, const QStringList &available) {
            return nearestLanguage(u"de_DE"_s, system, available);
        };
        QCOMPARE(nearest(u"ru_RU"_s, {u"en_US"_s, u"ru_RU"_s}), u"ru_RU"_s);
        QCOMPARE(nearest(u"it_IT"_s, {u"en_US"_s, u"ru_RU"_s}), u"en_US"_s);
        QCOMPARE(nearest(u"it_IT"_s, {u"aa_AA"_s, u"en-EN"_s}), u"en-EN"_s);
        QCOMPARE(nearest(u"ru_RU"_s, {u"de_DE"_s, u"ru_RU"_s}), u"de_DE"_s);
        QCOMPARE(nearest(u"ru_RU"_s, {}), QString());
    }

    void startReadsTheSettingsAsText()
    {
        const auto read = [](const QString &settings) { return languageFromSettingsText(settings); };
        QCOMPARE(read(u"<?xml?>\n<S>\n    <Language>ru_RU</Language>\n</S>\n"_s), u"ru_RU"_s);
        QCOMPARE(read(u" <Language>ru_RU"_s), u"ru_RU"_s);
        QCOMPARE(read(u" \0<Language>ru_RU</Language>"_s), u"ru_RU"_s);
        QCOMPARE(read(u" <Language>en_US</Language><Language>ru_RU</Language>"_s), u"en_US"_s);
        for (const QString &refused :
             {u"<Language>ru_RU</Language>"_s, u" <Language>ru-RU</Language>"_s, u" <Language>ru_"_s,
              u" <language>ru_RU</language>"_s, u" <Language>de_DE</Language>"_s, u" <Language>"_s, u""_s,
              u" <Language>x</Language><Language>ru_RU</Language>"_s})
            QVERIFY2(read(refused).isEmpty(), qPrintable(refused));
        const QTemporaryDir folder;
        QCOMPARE(startLanguage(writtenSettings(folder, u" <Language>ru_RU"_s)), u"ru_RU"_s);
        QCOMPARE(startLanguage(writtenSettings(folder, {})), LanguageContext::systemLanguage());
    }

    void detectionLooksForEnglishFirst()
    {
        const QTemporaryDir folder;
        QString text = u"<Language>ru_RU</Language>"_s;
        QCOMPARE(LanguageContext::AutoDetectLanguage(writtenSettings(folder, text)), u"ru_RU"_s);
        text += u"<Language>en_US</Language>"_s;
        QCOMPARE(LanguageContext::AutoDetectLanguage(writtenSettings(folder, text)), u"en_US"_s);
        for (const QString &path : {folder.filePath(u"none.xml"_s), folder.path()}) {
            QCOMPARE(startLanguage(path), LanguageContext::systemLanguage());
            QCOMPARE(LanguageContext::AutoDetectLanguage(path), u"en_US"_s); // the tests' locale is "C"
        }
    }

    // From here on languages are installed, and what is installed stays so.
    void languageComesIntoForceAtTheFirstReload()
    {
        const QTemporaryDir folder;
        const QStringList languages{u"ru_RU"_s, u"en_US"_s};
        QVERIFY(!languages.contains(LanguageContext::systemLanguage())); // the tests' locale is "C"
        SettingsWithLanguage settings(folder.filePath(u"s.xml"_s), true, languages, nullptr, NTSettings::XML);
        QStringList notices;
        settings.setRestartNotice([&](const QString &text) { notices << text; });
        settings.setLanguage(u"en_US"_s);
        settings.setLanguage({});
        QVERIFY(notices.isEmpty());

        QVERIFY(settings.reload());
        QCOMPARE(settings.getLanguage(), u"ru_RU"_s);
        QCOMPARE(LanguageContext::currentLanguage(), u"ru_RU"_s);
        QCOMPARE(settings.getPropertyByName(u"Language"_s)->enums, languages);

        QVERIFY(settings.reload()); // served once, so that each change is told once
        settings.setLanguage(u"de_DE"_s);
        QVERIFY(notices.isEmpty());
        settings.setLanguage(u"en_US"_s);
        QCOMPARE(notices.size(), 1);
        QCOMPARE(LanguageContext::currentLanguage(), u"en_US"_s);
    }

    void lastInstalledLanguageIsAskedFirst()
    {
        QCOMPARE(LanguageContext::setLanguage(u"ru_RU"_s), u"ru_RU"_s);
        QCOMPARE(QCoreApplication::translate("Generic", "Index"), u"№"_s);
        QCOMPARE(LanguageContext::setLanguage(u"de_DE"_s), u"en_US"_s);
        QCOMPARE(LanguageContext::currentLanguage(), u"en_US"_s);
        QCOMPARE(QCoreApplication::translate("Generic", "Index"), u"#"_s);
        // English has no form of its own for this text, and Russian still stands behind it.
        QCOMPARE(QCoreApplication::translate("Generic", "Save"), u"Сохранить"_s);
    }
};

QTEST_GUILESS_MAIN(TestLanguageContext)
#include "tst_languagecontext.moc"
