#include "framework/settings/settingswithlanguage.h"

#include "framework/settings/languagecontext.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class TestSettingsWithLanguage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
};

QTEST_GUILESS_MAIN(TestSettingsWithLanguage)
#include "tst_settingswithlanguage.moc"
