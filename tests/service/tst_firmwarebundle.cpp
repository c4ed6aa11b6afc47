#include "service/firmwarebundle.h"

#include "bundlemaker.h"
#include "rows.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtEndian>

using namespace Qt::StringLiterals;

using BundleMaker::Entry;
using Kind = FirmwareTarget::Kind;

Q_DECLARE_METATYPE(FirmwareTarget::Kind)

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
        FirmwareBundle bundle({Kind::Avr, u"avrdude"_s});
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
        FirmwareBundle bundle({Kind::Avr, u"avrdude"_s});
        QVERIFY(bundle.open(u"b.bfw"_s));
        QVERIFY(!bundle.isValid());
        QVERIFY2(bundle.problem().contains(problem), qPrintable(bundle.problem()));
        bundle.clear();
        QCOMPARE(QDir().entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList(u"b.bfw"_s));
    }

    void whatCannotBeReadIsNoBundle()
    {
        for (const QString &path : {u"missing.bfw"_s, m_home.path(), u"/dev/zero"_s}) {
            FirmwareBundle bundle({Kind::Avr, u"avrdude"_s});
            QVERIFY2(!bundle.open(path) && !bundle.isValid(), qPrintable(path));
        }
    }

    void workFolderThatCannotBeMade()
    {
        const QString path = m_home.filePath(u"b.bfw"_s);
        QVERIFY(writeFile(path, BundleMaker::archive(withFiles({}))));
        // Even the superuser makes no folder in one that is gone.
        m_dir.reset();
        FirmwareBundle bundle({Kind::Avr, u"avrdude"_s});
        QVERIFY(bundle.open(path));
        QVERIFY(!bundle.isValid());
        QVERIFY(bundle.problem().contains("cannot be unpacked"_L1));
    }

    void findsEachRolesFirstFile_data()
    {
        const auto row =
            columns<Kind, QString, QString, QStringList, QString>("kind", "tool", "suffix", "paths", "found");
        const QString exe = u".exe"_s;
        const QString own = u"self-avrdude.exe"_s;
        row("whole", Kind::Avr, own, exe, {u"f/a.conf"_s, u"f/avrdude.exe"_s, u"f/x.hex"_s},
            u"avrdude.exe=f/avrdude.exe conf=f/a.conf hex=f/x.hex"_s);
        row("no exe here", Kind::Avr, own, {}, {u"f/avrdude"_s, u"f/avrdude.conf"_s, u"f/sub/x.hex"_s},
            u"avrdude.exe=f/avrdude conf=f/avrdude.conf hex=f/sub/x.hex"_s);
        row("the tool lies deeper", Kind::Avr, own, {}, {u"f/a.conf"_s, u"f/bin/avrdude"_s, u"f/x.hex"_s},
            u"conf=f/a.conf hex=f/x.hex"_s);
        row("no conf, two images, other case", Kind::Avr, u"avrdude"_s, exe,
            {u"f/A.CONF"_s, u"f/first.hex"_s, u"f/second.hex"_s}, u"hex=f/first.hex"_s);
        row("one file meets two", Kind::Avr, u"avrdude"_s, exe, {u"f/a.conf.hex"_s}, u"conf=f/a.conf.hex"_s);
        row("esp32", Kind::Esp32, u"esptool"_s, exe,
            {u"f/boot_app0.bin"_s, u"f/s.ino.bin"_s, u"f/s.ino.bootloader.bin"_s,
             u"f/s.ino.partitions.bin"_s},
            u"boot_app=f/boot_app0.bin bootloader=f/s.ino.bootloader.bin ino=f/s.ino.bin "
            "partitions=f/s.ino.partitions.bin"_s);
    }

    void findsEachRolesFirstFile()
    {
        QFETCH(Kind, kind);
        QFETCH(QString, tool);
        QFETCH(QString, suffix);
        QFETCH(QStringList, paths);
        const FirmwareTarget::Files files = FirmwareTarget(kind, tool, suffix).findFiles(u"f"_s, paths);
        QStringList found;
        for (const auto &[role, path] : files.asKeyValueRange())
            found += role + u'=' + path;
        QTEST(found.join(u' '), "found");
    }

    void commandLineIsExact_data()
    {
        const auto row = columns<Kind, QString, QString, QString>("kind", "tool", "suffix", "line");
        row("avr", Kind::Avr, u"self-avrdude.exe"_s, u".exe"_s,
            uR"("w/avrdude.exe" "-Cw/a b.conf" -v -V -patmega2560 -cwiring "-PCOM7" )"
            R"(-b115200 -D -Uflash:w:w/x.hex:i)"_s);
        row("esp32, a tool of the system", Kind::Esp32, u"esptool.exe"_s, {},
            uR"("esptool" --chip esp32 --port "COM7" --baud 1500000 --before default_reset --after )"
            R"(hard_reset write_flash -z --flash_mode dio --flash_freq 80m --flash_size 4MB 0x1000 )"
            R"("w/boot" 0x8000 "w/part" 0xe000 "w/app" 0x10000 "w/ino")"_s);
    }

    void commandLineIsExact()
    {
        QFETCH(Kind, kind);
        QFETCH(QString, tool);
        QFETCH(QString, suffix);
        const FirmwareTarget::Files files{{u"conf"_s, u"w/a b.conf"_s},   {u"hex"_s, u"w/x.hex"_s},
                                          {u"bootloader"_s, u"w/boot"_s}, {u"partitions"_s, u"w/part"_s},
                                          {u"boot_app"_s, u"w/app"_s},    {u"ino"_s, u"w/ino"_s}};
        QTEST(FirmwareTarget(kind, tool, suffix).commandLine(u"w"_s, files, u"COM7"_s), "line");
    }

private:
    QTemporaryDir m_home;
    std::unique_ptr<QTemporaryDir> m_dir;
};

QTEST_GUILESS_MAIN(TestFirmwareBundle)
#include "tst_firmwarebundle.moc"
