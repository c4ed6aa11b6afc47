#include "framework/common/changelog.h"
#include "framework/common/connectionhelper.h"
#include "framework/common/fileutilities.h"
#include "framework/common/texthelper.h"

#include "files.h"

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class TestHelpers : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_root = m_folder->path();
        for (const QString &folder : {u"/b/inner"_s, u"/a"_s, u"/.hidden"_s})
            QVERIFY(QDir().mkpath(m_root + folder));
        for (const QString &file :
             {u"/x.json"_s, u"/y.JSON"_s, u"/z.txt"_s, u"/b/inner/w.json"_s, u"/a/json"_s})
            QVERIFY(writeFile(m_root + file));
        QVERIFY(QFile::link(m_root, m_root + u"/b/loop"_s));
    }

    void foldersEndWithOneSlash()
    {
        QCOMPARE(FileUtilities::FolderSlash({}), QString());
        QCOMPARE(FileUtilities::FolderSlash(u"a//b/"_s), u"a/b/"_s);
        QCOMPARE(FileUtilities::FolderSlash(u"\\\\host\\x"_s), u"/host/x/"_s);
    }

    void foldersAndFilesAreListed()
    {
        QCOMPARE(FileUtilities::GetSubfolders(m_root, false, false), (QStringList{u"a/"_s, u"b/"_s}));
        QCOMPARE(FileUtilities::GetSubfolders(m_root, true, true),
                 (QStringList{m_root + "/a/"_L1, m_root + "/b/"_L1, m_root + "/b/inner/"_L1,
                              m_root + "/b/loop/"_L1}));
        for (const QString &type : {u"*.json"_s, u"json"_s, u".json"_s})
            QCOMPARE(FileUtilities::getFilesOfType(m_root, type, true, false),
                     (QStringList{u"x.json"_s, u"y.JSON"_s, u"b/inner/w.json"_s}));
        QCOMPARE(FileUtilities::getFilesOfTypes(m_root + "/b"_L1, {u"txt"_s, u"json"_s}, true, true),
                 QStringList{m_root + "/b/inner/w.json"_L1});
        QVERIFY(FileUtilities::getFilesOfType(m_root + "/none"_L1, u"json"_s, true, true).isEmpty());
    }

    void clearingRemovesEverythingInside()
    {
        const QString target = m_root + "/b"_L1;
        QVERIFY(FileUtilities::clearFolder(target, false));
        QVERIFY(QDir(target).exists() && QDir(target).isEmpty());
        QVERIFY(QFile::exists(m_root + "/x.json"_L1)); // behind the link in the folder
        QVERIFY(FileUtilities::clearFolder(target, true));
        QVERIFY(!QDir(target).exists());
        QVERIFY(!FileUtilities::clearFolder(target, false));
        QVERIFY(FileUtilities::createIfNotExists(m_root + "/n/e/w"_L1));
        QVERIFY(!FileUtilities::createIfNotExists(m_root + "/x.json/sub"_L1));
    }

    void base64TakesAnyBytes()
    {
        const QByteArray bytes("\0\xff\xfe~", 4);
        QCOMPARE(FileUtilities::base64_encode(bytes), u"AP/+fg=="_s);
        QCOMPARE(FileUtilities::base64_decode_as_bytes(u"AP/+fg=="_s), bytes);
        QCOMPARE(FileUtilities::base64_decodeFromPercentEncoding(u"Pj4%2BPw%3D%3D"_s), u">>>?"_s);
    }

    void namesWithReservedSignsAreRefused()
    {
        for (const QChar sign : u"/\\:*?<>\""_s)
            QVERIFY(!FileUtilities::acceptableFileName(u"a"_s + sign));
        QVERIFY(FileUtilities::acceptableFileName(u"\u041e\u043f\u044b\u0442 1 |.'"_s));
    }

    void sizesTakeTheUnitThatFits()
    {
        const QString path = m_root + "/z.txt"_L1;
        QVERIFY(QFile::resize(path, 1023));
        QCOMPARE(FileUtilities::filesizeNice(path), u"1023 B"_s);
        QVERIFY(QFile::resize(path, 3 * 1024 * 512));
        QCOMPARE(FileUtilities::filesizeNice(path), u"1.5 MB"_s);
        QCOMPARE(FileUtilities::filesizeNice(m_root), QString());
    }

    void timeShowsHoursOnlyFromOneHourOn()
    {
        QCOMPARE(TextHelper::TimeToText(75.5, false), u"01:15"_s);
        QCOMPARE(TextHelper::TimeToText(75.001, true), u"01:15.001"_s);
        QCOMPARE(TextHelper::TimeToText(59.9999, true), u"00:59.999"_s);
        QCOMPARE(TextHelper::TimeToText(3600, false), u"01:00:00"_s);
        QCOMPARE(TextHelper::TimeToText(360'000, false), u"100:00:00"_s);
        QCOMPARE(TextHelper::TimeToText(qQNaN(), false), u"00:00"_s);
    }

    void textsAreMadeAndTakenApart()
    {
        const QDateTime moment({2024, 3, 9}, {7, 5, 1, 42});
        QCOMPARE(TextHelper::DateTimeFileString(moment, false), u"2024.03.09-07.05.01"_s);
        QCOMPARE(TextHelper::DateTimeFileString(moment, true), u"2024.03.09-07.05.01.042"_s);
        QCOMPARE(TextHelper::splitAndTrim(u" /a/ b //c/ "_s, u"/"_s), QStringList({u"a"_s, u"b"_s, u"c"_s}));
        QCOMPARE(TextHelper::multisplit(u"a;b,c;"_s, {u";"_s, u","_s}),
                 QStringList({u"a"_s, u"b"_s, u"c"_s, QString()}));
        QCOMPARE(TextHelper::trim(u"ababXab"_s, u"ab"_s), u"X"_s);
        QCOMPARE(TextHelper::trim(u"--"_s, QChar(u'-')), QString());
        QCOMPARE(TextHelper::join({u"a"_s, u"b"_s}, u", "_s, u"<"_s, u">"_s), u"<a>, <b>"_s);
        QCOMPARE(TextHelper::numToStr(0.5, 2), u"0.50"_s);
        QCOMPARE(TextHelper::numToStr(1234567.0, -1), u"1.23457e+06"_s);
    }

    void connectionsEndTogether()
    {
        QObject sender;
        int calls = 0;
        const auto connected = [&] {
            return connect(&sender, &QObject::objectNameChanged, this, [&calls] { ++calls; });
        };
        {
            ConnectionHelper helper;
            helper << connected() << connected();
            sender.setObjectName("a");
            QCOMPARE(calls, 2);
            helper.clear();
            sender.setObjectName("b");
            helper << connected();
        }
        QList<QMetaObject::Connection> list{connected()};
        ConnectionHelper::clear(list);
        sender.setObjectName("c");
        QCOMPARE(calls, 2);
        QVERIFY(list.isEmpty());
    }

    void readersSeeTheirLanguage()
    {
        const auto english = [](const QString &text) { return ChangeLog::inLanguage(text, u"en_US"_s); };
        const auto russian = [](const QString &text) { return ChangeLog::inLanguage(text, u"ru_RU"_s); };
        const QString two = u"2 (b)\r\n<ru-RU>\r\n+ да\r\n+ да\r\n</ru-RU>\r\n<en-EN>\r\n+ yes\r\n"
                            "</en-EN>\r\n\r\n1 (a)\r\n<ru-RU>\r\n+ нет\r\n</ru-RU>\r\n"
                            "<en-EN>\r\n+ no\r\n</en-EN>\r\n"_s;
        QCOMPARE(english(two), u"2 (b)\r\n+ yes\r\n\r\n1 (a)\r\n+ no\r\n"_s);
        QCOMPARE(russian(two), u"2 (b)\r\n+ да\r\n+ да\r\n\r\n1 (a)\r\n+ нет\r\n\r\n"_s);
        const QString names = u"<en>a</en><en-US> b </en-US><ru>в</ru><ru_RU>г</ru_RU><de>d</de>"_s;
        QCOMPARE(english(names) + russian(names), u"abвг"_s);
        const QString plain = u"a < b, <x> and </x, 2 > 1 <"_s;
        QCOMPARE(english(plain), plain);
        QCOMPARE(english(u"<en><ru>x</ru>y</en>"_s), u"y"_s);
        QCOMPARE(english(u"1 < 2 <en-EN>y</en-EN>"_s), u"1 < 2 y"_s);
    }

    void fileOfTheApplicationComesFirst()
    {
        const QTemporaryDir folder;
        const auto find = [&] { return ChangeLog::find(folder.path(), u"Spinbar"_s); };
        const QString own = find();
        QVERIFY(own.contains("<ru-RU>\r\n+ "_L1));
        // Only the program's own resources come between the two.
        for (const QString &other : {u"CHANGELOG.txt"_s, u"spinbar.txt"_s})
            QVERIFY(writeFile(folder.filePath(other), "no"));
        QCOMPARE(find(), own);
        QVERIFY(writeFile(folder.filePath(u"spinbar-changelog.TXT"_s), "1\n2\r\n"));
        QCOMPARE(find(), u"1\r\n2\r\n"_s);
    }

    void ownListIsInForm()
    {
        const QString own = ChangeLog::find({}, u"Spinbar"_s);
        const QRegularExpression heading(u"^([0-9.]+) \\(\\d{4}-\\d\\d-\\d\\d\\)$"_s);
        for (const QString &language : {u"ru_RU"_s, u"en_US"_s}) {
            QStringList versions;
            for (const QString &line :
                 ChangeLog::inLanguage(own, language).split(u"\r\n"_s, Qt::SkipEmptyParts)) {
                const auto match = heading.match(line);
                QVERIFY2(match.hasMatch() || line.startsWith("+ "_L1), qPrintable(line));
                if (match.hasMatch())
                    versions += match.captured(1);
            }
            QCOMPARE(versions.value(0), QStringLiteral(SPINBAR_VERSION));
        }
        QCOMPARE(own.count("<ru-RU>"_L1), own.count("<en-EN>"_L1));
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_root;
};

QTEST_GUILESS_MAIN(TestHelpers)
#include "tst_helpers.moc"
