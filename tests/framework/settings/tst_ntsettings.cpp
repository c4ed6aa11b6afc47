#include "samplesettings.h"
#include "settingswalk.h"

#include "files.h"
#include "rows.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace Qt::StringLiterals;

namespace {

const QByteArray FirstFile = R"(<?xml version="1.0"?>
<SampleSettings>
    <Drive>Fast</Drive>
    <Delay>7.5</Delay>
    <Count>2</Count>
    <Active>true</Active>
    <Title></Title>
    <Ratio>0.2</Ratio>
    <Blob></Blob>
    <Place>1;2</Place>
    <Spot>0.5;2</Spot>
    <Extent>3;4</Extent>
    <Octet>7</Octet>
</SampleSettings>
)";

constexpr int UnknownElements = 10'000;
constexpr int LongestReadMs = 5'000;

QByteArray nestedEntities()
{
    QByteArray text = "<!DOCTYPE a [<!ENTITY e0 \"0123456789\">";
    for (int i = 1; i < 40; ++i)
        text += "<!ENTITY e" + QByteArray::number(i) + " \""
                + ("&e" + QByteArray::number(i - 1) + ';').repeated(10) + "\">";
    return text + "]><SampleSettings><Count>4</Count><Title>&e39;</Title></SampleSettings>";
}

} // namespace

class TestNTSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath(u"deep/er/Settings.xml"_s);
    }

    void everyPropertyKeepsItsDeclarationAndSurvivesTheFile()
    {
        SampleSettings source(m_path, false);
        SettingsWalk::checkDefaultsAndLimits(source);
        SampleSettings target;
        SettingsWalk::checkRoundTrip(source, target);
    }

    void firstChangeWritesThisFile()
    {
        SampleSettings settings(m_path);
        QSignalSpy reloaded(&settings, &NTSettings::reloaded);
        QVERIFY(settings.reload());
        QCOMPARE(reloaded.size(), 1);
        QVERIFY(!QFileInfo::exists(m_path) && QFileInfo::exists(m_folder->filePath(u"deep/er"_s)));
        settings.setDelay(7.5);
        QCOMPARE(contents(m_path), FirstFile);
        settings.setTitle(u"longer"_s.repeated(1000));
        settings.setTitle({});
        QCOMPARE(contents(m_path), FirstFile);
    }

    void setterSignalsInOrderAndOnlyOnChange()
    {
        SampleSettings settings(m_path);
        QStringList log;
        connect(&settings, &SampleSettings::changedCount, this,
                [&](int value) { log << u"changedCount %1"_s.arg(value); });
        connect(&settings, &NTSettings::propertyChanged, this,
                [&](const QString &name) { log << name + (QFileInfo::exists(m_path) ? " late"_L1 : ""_L1); });
        connect(&settings, &NTSettings::saved, this,
                [&] { log << (contents(m_path).contains("<Count>10</Count>") ? u"saved"_s : u"?"_s); });
        settings.setCount(1000);
        settings.setCount(2000);
        settings.setRatio(std::numeric_limits<double>::quiet_NaN());
        settings.setRatio(0.2);
        QCOMPARE(log, (QStringList{u"changedCount 10"_s, u"Count"_s, u"saved"_s}));
        QVERIFY(QMetaObject::invokeMethod(&settings, "resetCount"));
        QCOMPARE(settings.getCount(), 2);
    }

    void reloadSignalsButNeverSaves()
    {
        SampleSettings writer(m_path);
        writer.setCount(4);
        SampleSettings reader(m_path);
        QStringList log;
        connect(&reader, &NTSettings::propertyChanged, this, [&](const QString &name) { log << name; });
        connect(&reader, &NTSettings::reloaded, this, [&] { log << u"reloaded"_s; });
        connect(&reader, &NTSettings::saved, this, [&] { log << u"saved"_s; });
        QVERIFY(reader.reload());
        QCOMPARE(log, (QStringList{u"Count"_s, u"reloaded"_s}));
        connect(&reader, &SampleSettings::changedTitle, this, [&] { reader.reload(); });
        writer.setTitle(u"t"_s);
        writer.setRatio(0.5);
        reader.reload();
        QVERIFY(!log.contains(u"saved"_s));
        log.clear();
        QVERIFY(reader.loadFromQVariantMap({{u"Count"_s, 5}, {u"Fleeting"_s, 5}, {u"Foreign"_s, 5}}));
        QCOMPARE(log, (QStringList{u"Count"_s, u"saved"_s}));
        QCOMPARE(reader.getValue(u"Fleeting"_s), QVariant(0));
    }

    void fileThatCannotBeWrittenIsSilent()
    {
        SampleSettings settings(m_folder->path());
        QSignalSpy saved(&settings, &NTSettings::saved);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Cannot write"_s));
        settings.setCount(3);
        QCOMPARE(saved.size(), 1);
        QVERIFY(settings.reload());
        settings.setFilepath({}); // and nothing is tried without a path
        QVERIFY(!settings.reload());
        settings.setCount(4);
        QCOMPARE(saved.size(), 2);
    }

#ifdef Q_OS_UNIX
    void pipeInThePlaceOfTheFileIsNotWaitedFor()
    {
        for (const NTSettings::NTSettingsFormat format : {NTSettings::XML, NTSettings::JSON}) {
            const QString path = m_folder->filePath(QString::number(format));
            QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), S_IRUSR | S_IWUSR), 0);
            SampleSettings settings(path, true, format);
            QVERIFY(settings.reload());
            QCOMPARE(settings.getCount(), 2);
        }
    }
#endif

    void badFilesAreReadAsFarAsTheyGo_data()
    {
        const QByteArray unknown = QByteArray("<U><V a='1'>x</V></U>").repeated(UnknownElements);
        const auto row = columns<QByteArray, int, QString>("bytes", "count", "title");
        row("empty", "", 2, {});
        row("truncated in an element", "<S><Count>4</Count><Title>abc", 4, {});
        row("truncated in a number", "<S><Count>4", 2, {});
        row("null byte", QByteArray("<S><Count>4</Count>\0<Title>a</Title></S>", 41), 4, {});
        row("unknown elements", "<S>" + unknown + "<Count>4</Count>" + unknown + "</S>", 4, {});
        row("deep", QByteArray("<U>").repeated(UnknownElements) + "<Count>4</Count>", 4, {});
        row("expanding entities", nestedEntities(), 4, {});
        row("byte order mark", "\xEF\xBB\xBF<?xml version=\"1.0\"?><S><Count>4</Count></S>", 4, {});
        row("another class's root", "<SpeedScript><Count>4</Count><Title>a</Title></SpeedScript>", 4, "a");
        row("child of an unknown element", "<S><U><Count>4</Count></U></S>", 4, {});
        row("root of a property's name", "<Count>4</Count>", 4, {});
        row("child inside a value", "<S><Count>4</Count><Title>a<b/></Title><Count>5</Count></S>", 4, {});
        row("too large and not a number", "<S><Count>99</Count><Count>x</Count><Delay>nan</Delay></S>", 10,
            {});
        row("far too large", "<S><Count>4</Count><Count>99999999999999999999</Count><Delay>1e999</Delay></S>",
            4, {});
        row("unknown enumerator", "<S><Drive>Sideways</Drive><Drive>7</Drive><Count>4</Count></S>", 4, {});
        row("invalid encoding", "<S><Count>4</Count><Title>\xff\xfe</Title></S>", 4, "\ufffd\ufffd");
        row("not editable", "<S><Fleeting>1</Fleeting><Count>4</Count></S>", 4, {});
    }

    void badFilesAreReadAsFarAsTheyGo()
    {
        QFETCH(QByteArray, bytes);
        SampleSettings settings(m_path);
        QVERIFY(writeFile(m_path, bytes));
        QElapsedTimer timer;
        timer.start();
        QVERIFY(settings.reload());
        QVERIFY(timer.elapsed() < LongestReadMs);
        QTEST(settings.getCount(), "count");
        QTEST(settings.getTitle(), "title");
        QCOMPARE(settings.getDrive(), SampleSettings::Mode::Fast);
        QCOMPARE(settings.getDelay(), 5.0);
        QCOMPARE(settings.getValue(u"Fleeting"_s), QVariant(0));
        settings.setDelay(8);
        SampleSettings next(m_path);
        next.reload();
        QCOMPARE(next.getQVariantMap(), settings.getQVariantMap());
    }

    void jsonFileIsOneLineInKeyOrder()
    {
        SampleSettings settings(m_path, true, NTSettings::JSON);
        settings.setTitle(u"\u044f\""_s);
        QCOMPARE(contents(m_path),
                 QByteArray("{\"Active\":true,\"Blob\":null,\"Count\":2,\"Delay\":5,\"Drive\":\"Fast\","
                            "\"Extent\":null,\"Octet\":\"\\u0007\",\"Place\":null,\"Ratio\":0.2,"
                            "\"Spot\":null,\"Title\":\"\u044f\\\"\"}"));
        SampleSettings next(m_path, true, NTSettings::JSON);
        QVERIFY(next.reload());
        QCOMPARE(next.getTitle(), settings.getTitle());
    }

    void jsonTextIsCheckedStepByStep()
    {
        SampleSettings settings;
        for (const QString &refused : {u""_s, u"{"_s, u"[{\"Count\":4}]"_s, u"{}"_s})
            QVERIFY2(!settings.loadFromJson(refused), qPrintable(refused));
        for (const QString &idle : {u"{\"Count\":null}"_s, u"{\"Count\":{\"a\":1}}"_s})
            QVERIFY2(settings.loadFromJson(idle), qPrintable(idle));
        QCOMPARE(settings.getCount(), 2);
        QVERIFY(settings.loadFromJson(u"{\"Count\":4,\"Drive\":\"?\",\"Foreign\":[[]]}"_s));
        QCOMPARE(settings.getCount(), 4);
        QVERIFY(settings.loadFromJson(u"{\"Count\":1e6,\"Drive\":7}"_s));
        QCOMPARE(settings.getCount(), 10);
        QCOMPARE(settings.getDrive(), SampleSettings::Mode::Fast);
    }

    void mapIsWrittenAndEndsTheReading()
    {
        MapSettings settings;
        settings.setBefore(2);
        settings.setEntries({{u"b"_s, u"<"_s}, {u"a"_s, u"1"_s}});
        settings.setAfter(2);
        const QString text = settings.saveToString();
        QVERIFY(text.contains(
            "    <Entries>\n        <a>1</a>\n        <b>&lt;</b>\n    </Entries>\n    <After>2</After>\n"_L1));
        MapSettings copy;
        QVERIFY(copy.loadFromXMLString(text));
        QCOMPARE(copy.getBefore(), 2);
        QVERIFY(copy.getEntries().isEmpty());
        QCOMPARE(copy.getAfter(), 1);
    }

    void severalObjectsShareADocument()
    {
        SampleSettings first;
        SampleSettings second;
        first.setBlob("ab");
        second.setCount(9);
        const QString text = SampleSettings::writeComponentsToString({&first, &second});
        QVERIFY(text.startsWith(
            "<?xml version=\"1.0\"?>\n<Component>\n    <SampleSettings>\n        <Drive>"_L1));
        SampleSettings copy;
        QXmlStreamReader reader(text);
        reader.readNextStartElement();
        reader.readNextStartElement();
        copy.metaDescriptor()->loadXmlContent(u"SampleSettings"_s, reader);
        QCOMPARE(copy.getBlob(), QByteArray("ab"));
        QCOMPARE(copy.getCount(), 2);
        copy.metaDescriptor()->loadXmlContent(u"SampleSettings"_s, reader);
        QCOMPARE(copy.getCount(), 9);
    }

    void listItemsAreToggledTrimmed()
    {
        QStringList list{u"a"_s, u"b"_s, u"a"_s};
        for (const QString &idle : {u"  "_s, u" b "_s})
            QVERIFY(!NTSettings::toogleItemInStringList(list, idle, true));
        QVERIFY(!NTSettings::toogleItemInStringList(list, u"d"_s, false));
        QVERIFY(NTSettings::toogleItemInStringList(list, u" a "_s, false));
        QVERIFY(NTSettings::toogleItemInStringList(list, u" c"_s, true));
        QCOMPARE(list, (QStringList{u"b"_s, u"a"_s, u"c"_s}));
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

QTEST_GUILESS_MAIN(TestNTSettings)
#include "tst_ntsettings.moc"
