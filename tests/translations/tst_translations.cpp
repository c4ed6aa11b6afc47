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

QString compiled(const QString &language, const Key &key)
{
    QTranslator translator;
    return translator.load(u":/resources/translations/Spinbar_%1.qm"_s.arg(language))
               ? translator.translate(key.first.toUtf8(), key.second.toUtf8())
               : u"no catalogue"_s;
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
    void compiledCataloguesAnswerTheSameEntries()
    {
        const auto english = keptCatalogue(English);
        const auto russian = keptCatalogue(Russian);
        QVERIFY(english && russian);
        QVERIFY(english->size() > 200);
        QCOMPARE(english->keys(), russian->keys());
        for (const Key &key : english->keys()) {
            QCOMPARE(compiled(English, key), english->value(key).translation);
            QCOMPARE(compiled(Russian, key), russian->value(key).translation);
        }
    }

    void oddWordsStayAsTheyAre()
    {
        const auto check = [](const QString &context, const QString &text, const QString &english,
                              const QString &russian) {
            QCOMPARE(compiled(English, {context, text}), english);
            QCOMPARE(compiled(Russian, {context, text}), russian);
        };
        check(u"Generic"_s, u"Index"_s, u"#"_s, u"№"_s);
        check(u"Generic"_s, u"Title"_s, u"Date"_s, u"Дата"_s);
        check(u"Generic"_s, u"Rodent"_s, u"Title"_s, u"Название"_s);
        check(u"Generic"_s, u"Not connected"_s, {}, u"Нет подключен"_s);
        check(u"Generic"_s, u" s"_s, {}, u" с"_s);
        check(u"Generic"_s, u" m"_s, {}, u"м"_s);    // the leading blank is lost
        check(u"Generic"_s, u"m/s"_s, {}, u"м/c"_s); // with a Latin letter
        check(u"Generic"_s, u"rpm"_s, u"RPM"_s, u"об./мин"_s);
        check(u"SpinbarRecord"_s, u"CKO"_s, u"σ"_s, {});
        check(u"SpinbarController"_s, u"Нажмите \"Начать\" и дождитесь окончания калибровки"_s,
              u"Press \"Begin\" and wait for calibration to finish"_s, {});
        check(u"SpinbarController"_s, u"Выключить электросетку"_s, u"Turn off electic grid"_s, {});
        check(u"SpeedScriptViewer"_s, u"Click the line or markers,\r\nhold and drag to desired position"_s,
              {}, u"Нажмите на линию или маркеры\nи перетяните в желаемую позицию"_s);
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
