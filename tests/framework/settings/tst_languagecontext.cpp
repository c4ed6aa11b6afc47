#include "framework/settings/languagecontext.h"
#include "framework/settings/startlanguage.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString writtenSettings(const QTemporaryDir &folder, const QString &text)
{
    QFile file(folder.filePath(u"Settings.xml"_s));
    const QByteArray bytes = text.toUtf8();
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? file.fileName() : QString();
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

    void textIsTranslatedIntoALanguageThatIsNotInstalled_data()
    {
        QTest::addColumn<QString>("context");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("translation");
        const QString save = u"Save"_s;
        QTest::newRow("Russian") << u"Generic"_s << save << u"ru_RU"_s << u"Сохранить"_s;
        QTest::newRow("hyphen for underscore") << u"Generic"_s << u"rpm"_s << u"en-US"_s << u"RPM"_s;
        QTest::newRow("source not ASCII") << u"MainWindow"_s << u"Записи"_s << u"en_US"_s << u"Records"_s;
        QTest::newRow("of Qt's own") << u"QPlatformTheme"_s << u"Cancel"_s << u"ru_RU"_s << u"Отмена"_s;
        QTest::newRow("no translation") << u"Generic"_s << save << u"en_US"_s << save;
        QTest::newRow("unknown context") << u"Nowhere"_s << save << u"ru_RU"_s << save;
        QTest::newRow("unknown language") << u"Generic"_s << save << u"de_DE"_s << save;
        QTest::newRow("unknown language with hyphens") << u"Generic"_s << save << u"-d-e-"_s << save;
        QTest::newRow("no language") << u"Generic"_s << save << QString() << save;
    }

    void textIsTranslatedIntoALanguageThatIsNotInstalled()
    {
        QFETCH(QString, context);
        QFETCH(QString, text);
        QFETCH(QString, language);
        QTEST(LanguageContext::translate(context, text, language), "translation");
        QCOMPARE(QCoreApplication::translate("Generic", "Save"), u"Save"_s);
    }

    void multilingualFormHoldsEachLanguageAndTheSource()
    {
        const QMap<QString, QString> expected{
            {QString(), u"Language"_s}, {u"en_US"_s, u"Language"_s}, {u"ru_RU"_s, u"Язык"_s}};
        QCOMPARE(LanguageContext::multilingualTranslate(u"Generic"_s, u"Language"_s), expected);
    }

    void missingLanguageIsReplacedByTheNearest_data()
    {
        QTest::addColumn<QString>("system");
        QTest::addColumn<QStringList>("available");
        QTest::addColumn<QString>("language");
        const QStringList two{u"en_US"_s, u"ru_RU"_s};
        QTest::newRow("system's") << u"ru_RU"_s << two << u"ru_RU"_s;
        QTest::newRow("first") << u"it_IT"_s << two << u"en_US"_s;
        QTest::newRow("hyphenated English")
            << u"it_IT"_s << QStringList{u"aa_AA"_s, u"en-EN"_s} << u"en-EN"_s;
        QTest::newRow("itself") << u"ru_RU"_s << QStringList{u"de_DE"_s, u"ru_RU"_s} << u"de_DE"_s;
        QTest::newRow("none") << u"ru_RU"_s << QStringList() << QString();
    }

    void missingLanguageIsReplacedByTheNearest()
    {
        QFETCH(QString, system);
        QFETCH(QStringList, available);
        QTEST(nearestLanguage(u"de_DE"_s, system, available), "language");
    }

    void startReadsTheSettingsAsText_data()
    {
        QTest::addColumn<QString>("settings");
        QTest::addColumn<QString>("language");
        QTest::newRow("stored") << u"<?xml?>\n<S>\n    <Language>ru_RU</Language>\n</S>\n"_s << u"ru_RU"_s;
        QTest::newRow("tag at the very start") << u"<Language>ru_RU</Language>"_s << QString();
        QTest::newRow("two letters") << u" <Language>ru</Language>"_s << QString();
        QTest::newRow("hyphen") << u" <Language>ru-RU</Language>"_s << QString();
        QTest::newRow("language without files") << u" <Language>de_DE</Language>"_s << QString();
        QTest::newRow("other case of the tag") << u" <language>ru_RU</language>"_s << QString();
        QTest::newRow("cut off behind the name") << u" <Language>ru_RU"_s << u"ru_RU"_s;
        QTest::newRow("cut off within the name") << u" <Language>ru_"_s << QString();
        QTest::newRow("cut off behind the tag") << u" <Language>"_s << QString();
        QTest::newRow("two") << u" <Language>en_US</Language><Language>ru_RU</Language>"_s << u"en_US"_s;
        QTest::newRow("first refused") << u" <Language>x</Language><Language>ru_RU</Language>"_s << QString();
        QTest::newRow("null byte before") << u" \0<Language>ru_RU</Language>"_s << u"ru_RU"_s;
        QTest::newRow("empty") << QString() << QString();
    }

    void startReadsTheSettingsAsText()
    {
        QFETCH(QString, settings);
        QFETCH(QString, language);
        QCOMPARE(languageFromSettingsText(settings), language);
        const QTemporaryDir folder;
        QCOMPARE(startLanguage(writtenSettings(folder, settings)),
                 language.isEmpty() ? LanguageContext::systemLanguage() : language);
    }

    void unreadableSettingsLeaveTheSystemLanguage()
    {
        const QTemporaryDir folder;
        for (const QString &path : {folder.filePath(u"none.xml"_s), folder.path()}) {
            QCOMPARE(startLanguage(path), LanguageContext::systemLanguage());
            QCOMPARE(LanguageContext::AutoDetectLanguage(path), u"en_US"_s); // the tests' locale is "C"
        }
    }

    void englishIsLookedForFirstWhenDetecting()
    {
        const QTemporaryDir folder;
        QString text = u"<Language>ru_RU</Language>"_s;
        QCOMPARE(LanguageContext::AutoDetectLanguage(writtenSettings(folder, text)), u"ru_RU"_s);
        text += u"<Language>en_US</Language>"_s;
        QCOMPARE(LanguageContext::AutoDetectLanguage(writtenSettings(folder, text)), u"en_US"_s);
    }

    // Last, since what is installed stays installed.
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
