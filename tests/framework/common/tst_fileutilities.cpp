#include "framework/common/fileutilities.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class TestFileUtilities : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        const QDir root(m_folder->path());
        for (const QString &folder : {u"b/inner"_s, u"a"_s, u".hidden"_s})
            QVERIFY(root.mkpath(folder));
        for (const QString &file : {u"x.json"_s, u"y.JSON"_s, u"z.txt"_s, u"b/inner/w.json"_s, u"a/json"_s})
            QVERIFY(QFile(root.filePath(file)).open(QIODevice::WriteOnly));
        QVERIFY(QFile::link(m_folder->path(), root.filePath(u"b/loop"_s)));
    }

    void foldersEndWithOneSlash_data()
    {
        QTest::addColumn<QString>("result");
        QTest::newRow("") << QString();
        QTest::newRow("a\\b") << u"a/b/"_s;
        QTest::newRow("a//b/") << u"a/b/"_s;
        QTest::newRow("\\\\host\\x") << u"/host/x/"_s;
    }

    void foldersEndWithOneSlash()
    {
        QTEST(FileUtilities::FolderSlash(QString::fromLatin1(QTest::currentDataTag())), "result");
    }

    void subfoldersFollowTheirParent()
    {
        const QString root = m_folder->path();
        QCOMPARE(FileUtilities::GetSubfolders(root, false, false), (QStringList{u"a/"_s, u"b/"_s}));
        QCOMPARE(
            FileUtilities::GetSubfolders(root, true, true),
            (QStringList{root + "/a/"_L1, root + "/b/"_L1, root + "/b/inner/"_L1, root + "/b/loop/"_L1}));
        QVERIFY(FileUtilities::GetSubfolders(root + "/none"_L1, true, true).isEmpty());
    }

    void filesAreListedByEnding()
    {
        const QString root = m_folder->path();
        const QStringList expected{u"x.json"_s, u"y.JSON"_s, u"b/inner/w.json"_s};
        for (const QString &type : {u"*.json"_s, u"json"_s, u".json"_s})
            QCOMPARE(FileUtilities::getFilesOfType(root, type, true, false), expected);
        QCOMPARE(FileUtilities::getFilesOfTypes(root + "/b"_L1, {u"txt"_s, u"json"_s}, true, true),
                 QStringList{root + "/b/inner/w.json"_L1});
        QVERIFY(FileUtilities::getFilesOfType(root + "/none"_L1, u"json"_s, true, true).isEmpty());
    }

    void clearingRemovesEverythingInside()
    {
        const QString target = m_folder->filePath(u"b"_s);
        QVERIFY(FileUtilities::clearFolder(target, false));
        QVERIFY(QDir(target).exists() && QDir(target).isEmpty());
        QVERIFY(QFile::exists(m_folder->filePath(u"x.json"_s))); // behind the link in the folder
        QVERIFY(FileUtilities::clearFolder(target, true));
        QVERIFY(!QDir(target).exists());
        QVERIFY(!FileUtilities::clearFolder(target, false));
        QVERIFY(FileUtilities::createIfNotExists(m_folder->filePath(u"n/e/w"_s)));
        QVERIFY(!FileUtilities::createIfNotExists(m_folder->filePath(u"x.json/sub"_s)));
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
        QFile file(m_folder->filePath(u"big"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.resize(1023));
        QCOMPARE(FileUtilities::filesizeNice(file.fileName()), u"1023 B"_s);
        QVERIFY(file.resize(3 * 1024 * 512));
        QCOMPARE(FileUtilities::filesizeNice(file.fileName()), u"1.5 MB"_s);
        QCOMPARE(FileUtilities::filesizeNice(m_folder->filePath(u"none"_s)), QString());
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(TestFileUtilities)
#include "tst_fileutilities.moc"
