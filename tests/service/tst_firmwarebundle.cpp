#include "service/firmwarebundle.h"

#include "bundlemaker.h"
#include "rows.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtEndian>

using namespace Qt::StringLiterals;

using BundleMaker::Entry;

namespace {

constexpr quint32 Link = 0120777;
constexpr quint32 Pipe = 0010644;
constexpr qsizetype TooManyBytes = BundleArchive::MaxUnpackedBytes + 1;

QList<Entry> withFiles(const QList<Entry> &more)
{
    return QList<Entry>{{"a.hex", "1"}, {"a.conf", "2"}} + more;
}

/// States so many bytes for the only entry, wherever the archive does.
QByteArray stating(quint32 bytes, QByteArray archive)
{
    constexpr int InLocalHeader = 22;
    constexpr int InDirectory = 24;
    qToLittleEndian(bytes, archive.data() + archive.indexOf("PK\3\4") + InLocalHeader);
    qToLittleEndian(bytes, archive.data() + archive.lastIndexOf("PK\1\2") + InDirectory);
    return archive;
}

/// Takes the mark for UTF-8 off the first entry's name.
QByteArray unmarked(QByteArray archive)
{
    archive[archive.indexOf("PK\3\4") + 7] = 0;
    archive[archive.indexOf("PK\1\2") + 9] = 0;
    return archive;
}

QByteArray thousandFiles()
{
    QList<Entry> entries = withFiles({});
    for (int i = 0; entries.size() <= BundleArchive::MaxEntries; ++i)
        entries.append({QByteArray::number(i), "x"});
    return BundleMaker::archive(entries);
}

QByteArray damaged(QByteArray archive)
{
    archive[archive.indexOf("a.hex") + 5] = '?';
    return archive;
}

} // namespace

class TestFirmwareBundle : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir::setCurrent(m_dir->path()));
    }

    void cleanup() { QDir::setCurrent(QDir::tempPath()); }

    void findsTheFiles_data()
    {
        const auto row = columns<QByteArray, QString>("archive", "hex");
        const QByteArray dos = QByteArray::fromHex("8fe0aee8a8a2aaa0"); // in the code page 866
        const auto rowFor = [&row](const char *name, const Entry &hex, const QString &expected) {
            row(name, BundleMaker::archive({{"a.conf", "2"}, hex, {"sub/", {}}, {"sub/x", "3"}}), expected);
        };
        rowFor("plain", {"a.hex", "1"}, u"a.hex"_s);
        rowFor("needless path parts", {".//a.hex", "1"}, u"a.hex"_s);
        rowFor("a read-only file", {"a.hex", "1", 0100444}, u"a.hex"_s);
        rowFor("Cyrillic, marked", {"Прошивка 1.hex", "1", 0, true}, u"Прошивка 1.hex"_s);
        rowFor("Cyrillic from DOS", {dos + ".hex", "1"}, u"Прошивка.hex"_s);
        row("Cyrillic, not marked",
            unmarked(BundleMaker::archive({{"Прошивка.hex", "1", 0, true}, {"a.conf", "2"}})),
            u"Прошивка.hex"_s);
        row("two images", BundleMaker::archive(withFiles({{"b.hex", "3"}})), u"a.hex"_s);
    }

    void findsTheFiles()
    {
        QFETCH(QByteArray, archive);
        QFETCH(QString, hex);
        QVERIFY(writeFile(u"b.bfw"_s, archive));
        FirmwareBundle bundle({FirmwareTarget::Kind::Avr, u"avrdude"_s});
        QVERIFY(bundle.open(u"b.bfw"_s));
        QCOMPARE(bundle.problem(), QString());
        QVERIFY(bundle.isValid());
        QCOMPARE(bundle.files().value(u"hex"_s), bundle.folder() + u'/' + hex);
        QCOMPARE(contents(bundle.files().value(u"hex"_s)), QByteArray("1"));
        bundle.clear();
        QVERIFY(!bundle.isValid());
        QCOMPARE(QDir().entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList(u"b.bfw"_s));
    }

    void refuses_data()
    {
        const auto row = columns<QByteArray, QString>("archive", "problem");
        const QByteArray good = BundleMaker::archive(withFiles({}));
        const QString forbidden = u"entry that is not allowed"_s;
        const QString noConf = u"Missing in the bundle: .conf"_s;
        const auto rowFor = [&](const char *name, const Entry &entry) {
            row(name, BundleMaker::archive(withFiles({entry})), forbidden);
        };
        rowFor("parent", {"../evil", "x"});
        rowFor("parent further in", {"sub/../../evil", "x"});
        rowFor("absolute", {"/evil", "x"});
        rowFor("drive", {"C:/evil", "x"});
        rowFor("stream", {"a.hex:evil", "x"});
        rowFor("backslash", {"..\\evil", "x"});
        rowFor("parent with a blank", {".. /evil", "x"});
        rowFor("device", {"com7.hex", "x"});
        rowFor("line break", {"a\nb", "x"});
        rowFor("link", {"link", "../../..", Link});
        rowFor("pipe", {"pipe", "", Pipe});
        rowFor("twice but for case", {"A.HEX", "x"});
        row("twice", BundleMaker::archive(withFiles({{"b.hex", "3"}})).replace("b.hex", "a.hex"), forbidden);
        row("a thousand files", thousandFiles(), u"more than 1000 entries"_s);
        // Before any of them has cost memory; no archive needs more for that.
        row("countless entries", QByteArray("PK\1\2").repeated(100 * BundleArchive::MaxEntries + 1),
            u"more than 1000 entries"_s);
        row("deeper", BundleMaker::archive({{"a.hex", "1"}, {"sub/a.conf", "2"}}), noConf);
        row("empty", {}, noConf + u", .hex"_s);
        row("no zip", "firmware", u"not a zip archive"_s);
        row("cut off", good.chopped(1), u"not a zip archive"_s);
        row("damaged", damaged(good), u"damaged: a.hex"_s);
        row("a file as a folder", BundleMaker::archive(withFiles({{"a.hex/x", "3"}})),
            u"cannot be unpacked"_s);
        const QByteArray bomb = BundleMaker::archive({{"zeros", QByteArray(TooManyBytes, '\0')}});
        row("large", bomb, u"larger than 256 MB"_s);
        row("large, but stated small", stating(10, bomb), u"larger than 256 MB"_s);
    }

    void refuses()
    {
        QFETCH(QByteArray, archive);
        QFETCH(QString, problem);
        QVERIFY(writeFile(u"b.bfw"_s, archive));
        FirmwareBundle bundle({FirmwareTarget::Kind::Avr, u"avrdude"_s});
        QVERIFY(bundle.open(u"b.bfw"_s));
        QVERIFY(!bundle.isValid());
        QVERIFY2(bundle.problem().contains(problem), qPrintable(bundle.problem()));
        bundle.clear();
        QCOMPARE(QDir().entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList(u"b.bfw"_s));
    }

    void whatCannotBeReadIsNoBundle()
    {
        for (const QString &path : {u"missing.bfw"_s, m_home.path(), u"/dev/zero"_s}) {
            FirmwareBundle bundle({FirmwareTarget::Kind::Avr, u"avrdude"_s});
            QVERIFY2(!bundle.open(path) && !bundle.isValid(), qPrintable(path));
        }
    }

    void workFolderThatCannotBeMade()
    {
        const QString path = m_home.filePath(u"b.bfw"_s);
        QVERIFY(writeFile(path, BundleMaker::archive(withFiles({}))));
        // Even the superuser makes no folder in one that is gone.
        m_dir.reset();
        FirmwareBundle bundle({FirmwareTarget::Kind::Avr, u"avrdude"_s});
        QVERIFY(bundle.open(path));
        QVERIFY(!bundle.isValid());
        QVERIFY(bundle.problem().contains("cannot be unpacked"_L1));
    }

private:
    QTemporaryDir m_home;
    std::unique_ptr<QTemporaryDir> m_dir;
};

QTEST_GUILESS_MAIN(TestFirmwareBundle)
#include "tst_firmwarebundle.moc"
