#include <QFile>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>
#include <QXmlStreamReader>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

const QString English = u"en_US"_s;
const QString Russian = u"ru_RU"_s;

struct Message
{
    QString translation;
    QString comment;
};

using Key = std::pair<QString, QString>; // context, source text
using Catalogue = QMap<Key, Message>;

/// The text of the element the reader stands at, with the bytes that are written as elements of their own.
QString readText(QXmlStreamReader &xml)
{
    QString text;
    while (xml.readNext() != QXmlStreamReader::EndElement) {
        if (xml.isStartElement()) {
            text += QChar(xml.attributes().value("value"_L1).sliced(1).toUShort(nullptr, 16));
            xml.skipCurrentElement();
        } else if (xml.isCharacters()) {
            text += xml.text();
        } else if (xml.hasError()) {
            return {};
        }
    }
    return text;
}

/// Nothing if the file is no whole catalogue or holds a text twice.
std::optional<Catalogue> readCatalogue(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QXmlStreamReader xml(&file);
    Catalogue catalogue;
    Key key;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == "name"_L1) {
            key.first = readText(xml);
        } else if (xml.name() == "source"_L1) {
            key.second = readText(xml);
            if (catalogue.contains(key))
                return {};
            catalogue.insert(key, {});
        } else if (xml.name() == "translation"_L1) {
            catalogue[key].translation = readText(xml);
        } else if (xml.name() == "translatorcomment"_L1) {
            catalogue[key].comment = readText(xml);
        }
    }
    return xml.hasError() ? std::nullopt : std::optional(catalogue);
}

std::optional<Catalogue> keptCatalogue(const QString &language)
{
    return readCatalogue(
        QStringLiteral(PROJECT_FOLDER "/resources/translations/Spinbar_%1.ts").arg(language));
}

/// A text with Cyrillic letters is written in Russian and needs English; any other needs Russian.
QString languageNeededBy(const QString &source)
{
    static const QRegularExpression cyrillic(u"\\p{Cyrillic}"_s);
    return source.contains(cyrillic) ? English : Russian;
}

} // namespace

class TestTranslations : public QObject
{
    Q_OBJECT

private slots:
    void cataloguesListTheSameTexts()
    {
        const auto english = keptCatalogue(English);
        const auto russian = keptCatalogue(Russian);
        QVERIFY(english && russian);
        QVERIFY(english->size() > 200);
        QCOMPARE(english->keys(), russian->keys());
    }

    void compiledCatalogueAnswersEveryEntry_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("English") << English;
        QTest::newRow("Russian") << Russian;
    }

    void compiledCatalogueAnswersEveryEntry()
    {
        QFETCH(QString, language);
        const auto catalogue = keptCatalogue(language);
        QVERIFY(catalogue);
        QTranslator compiled;
        QVERIFY(compiled.load(u":/resources/translations/Spinbar_%1.qm"_s.arg(language)));
        for (auto [key, message] : catalogue->asKeyValueRange())
            QCOMPARE(compiled.translate(key.first.toUtf8(), key.second.toUtf8()), message.translation);
    }

    void oddWordsStayAsTheyAre_data()
    {
        QTest::addColumn<QString>("context");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("english");
        QTest::addColumn<QString>("russian");
        const QString generic = u"Generic"_s;
        const QString controller = u"SpinbarController"_s;
        QTest::newRow("index") << generic << u"Index"_s << u"#"_s << u"№"_s;
        QTest::newRow("title") << generic << u"Title"_s << u"Date"_s << u"Дата"_s;
        QTest::newRow("rodent") << generic << u"Rodent"_s << u"Title"_s << u"Название"_s;
        QTest::newRow("not connected") << generic << u"Not connected"_s << QString() << u"Нет подключен"_s;
        QTest::newRow("leading blank") << generic << u" s"_s << QString() << u" с"_s;
        QTest::newRow("leading blank lost") << generic << u" m"_s << QString() << u"м"_s;
        QTest::newRow("Latin letter") << generic << u"m/s"_s << QString() << u"м/c"_s;
        QTest::newRow("unit") << generic << u"rpm"_s << u"RPM"_s << u"об./мин"_s;
        QTest::newRow("deviation") << u"SpinbarRecord"_s << u"CKO"_s << u"σ"_s << QString();
        QTest::newRow("quotes") << controller << u"Нажмите \"Начать\" и дождитесь окончания калибровки"_s
                                << u"Press \"Begin\" and wait for calibration to finish"_s << QString();
        QTest::newRow("misspelt") << controller << u"Выключить электросетку"_s << u"Turn off electic grid"_s
                                  << QString();
        QTest::newRow("line end") << u"SpeedScriptViewer"_s
                                  << u"Click the line or markers,\r\nhold and drag to desired position"_s
                                  << QString()
                                  << u"Нажмите на линию или маркеры\nи перетяните в желаемую позицию"_s;
    }

    void oddWordsStayAsTheyAre()
    {
        QFETCH(QString, context);
        QFETCH(QString, text);
        for (const QString &language : {English, Russian}) {
            QTranslator compiled;
            QVERIFY(compiled.load(u":/resources/translations/Spinbar_%1.qm"_s.arg(language)));
            const QString answer = compiled.translate(context.toUtf8(), text.toUtf8());
            QTEST(answer, language == English ? "english" : "russian");
        }
    }

    // Runs the extractor on the sources into a file of its own; the kept files are only read.
    void everyTextOfTheSourcesStandsInTheCatalogueThatNeedsIt()
    {
        const QTemporaryDir folder;
        const QString extracted = folder.filePath(u"sources_en.ts"_s);
        QProcess lupdate;
        lupdate.start(QStringLiteral(LUPDATE_PROGRAM),
                      {u"-silent"_s, u"-locations"_s, u"none"_s, QStringLiteral(PROJECT_FOLDER "/src"),
                       QStringLiteral(PROJECT_FOLDER "/resources/translations/runtimetexts.cpp"), u"-I"_s,
                       QStringLiteral(PROJECT_FOLDER "/src"), u"-ts"_s, extracted});
        QVERIFY(lupdate.waitForFinished());
        const QByteArray complaints = lupdate.readAllStandardError();
        QVERIFY2(lupdate.exitCode() == 0 && complaints.isEmpty(), complaints.constData());

        const auto sources = readCatalogue(extracted);
        QVERIFY(sources && !sources->isEmpty());
        const QMap<QString, Catalogue> kept{{English, keptCatalogue(English).value_or(Catalogue())},
                                            {Russian, keptCatalogue(Russian).value_or(Catalogue())}};
        QStringList missing;
        for (const Key &key : sources->keys()) {
            const QString language = languageNeededBy(key.second);
            const Message message = kept[language].value(key);
            if (message.translation.isEmpty() && message.comment != "The source text stands."_L1)
                missing += u"%1: \"%2\" (%3)"_s.arg(language, key.second, key.first);
        }
        QVERIFY2(missing.isEmpty(), qPrintable(missing.join(u"\n"_s)));
    }
};

QTEST_GUILESS_MAIN(TestTranslations)
#include "tst_translations.moc"
