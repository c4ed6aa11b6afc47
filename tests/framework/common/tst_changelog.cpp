#include "framework/common/changelog.h"

#include <QDate>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class TestChangeLog : public QObject
{
    Q_OBJECT

private slots:
    void readersSeeTheirLanguage_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("english");
        QTest::addColumn<QString>("russian");
        QTest::newRow("two entries")
            << u"2 (b)\r\n<ru-RU>\r\n+ да\r\n+ да\r\n</ru-RU>\r\n<en-EN>\r\n+ yes\r\n"
               "</en-EN>\r\n\r\n1 (a)\r\n<ru-RU>\r\n+ нет\r\n</ru-RU>\r\n"
               "<en-EN>\r\n+ no\r\n</en-EN>\r\n"_s
            << u"2 (b)\r\n+ yes\r\n\r\n1 (a)\r\n+ no\r\n"_s
            << u"2 (b)\r\n+ да\r\n+ да\r\n\r\n1 (a)\r\n+ нет\r\n\r\n"_s;
        QTest::newRow("other names") << u"<en>a</en><en-US> b </en-US><ru>в</ru><ru_RU>г</ru_RU><de>d</de>"_s
                                     << u"ab"_s << u"вг"_s;
        QTest::newRow("no blocks") << u"a < b, <x> and </x, 2 > 1 <"_s << u"a < b, <x> and </x, 2 > 1 <"_s
                                   << u"a < b, <x> and </x, 2 > 1 <"_s;
        QTest::newRow("block in a block") << u"<en><ru>x</ru>y</en>"_s << u"y"_s << QString();
        QTest::newRow("bracket in front") << u"1 < 2 <en-EN>y</en-EN>"_s << u"1 < 2 y"_s << u"1 < 2 "_s;
    }

    void readersSeeTheirLanguage()
    {
        QFETCH(QString, text);
        QTEST(ChangeLog::inLanguage(text, u"en_US"_s), "english");
        QTEST(ChangeLog::inLanguage(text, u"ru_RU"_s), "russian");
    }

    void fileOfTheApplicationComesFirst()
    {
        const QTemporaryDir folder;
        const auto write = [&](const QString &name, const QByteArray &text) {
            QFile file(folder.filePath(name));
            return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
        };
        const auto find = [&] { return ChangeLog::find(folder.path(), u"Spinbar"_s); };
        const QString own = find();
        QVERIFY(own.contains("<ru-RU>\r\n+ "_L1));
        // Only the program's own resources come between the two.
        QVERIFY(write(u"CHANGELOG.txt"_s, "any") && write(u"spinbar.txt"_s, "no"));
        QCOMPARE(find(), own);
        QVERIFY(write(u"spinbar-changelog.TXT"_s, "1\n2\r\n"));
        QCOMPARE(find(), u"1\r\n2\r\n"_s);
    }

    void ownListIsInForm()
    {
        const QString own = ChangeLog::find({}, u"Spinbar"_s);
        const QRegularExpression heading(u"^([0-9.]+) \\(([0-9-]{10})\\)$"_s);
        QStringList versions;
        for (const QString &language : {u"ru_RU"_s, u"en_US"_s}) {
            qsizetype changes = 0;
            for (const QString &line :
                 ChangeLog::inLanguage(own, language).split(u"\r\n"_s, Qt::SkipEmptyParts)) {
                const auto match = heading.match(line);
                if (match.hasMatch()) {
                    QVERIFY2(QDate::fromString(match.captured(2), Qt::ISODate).isValid(), qPrintable(line));
                    versions += match.captured(1);
                } else {
                    QVERIFY2(line.startsWith("+ "_L1), qPrintable(line));
                    ++changes;
                }
            }
            QVERIFY(changes >= versions.size());
        }
        QCOMPARE(versions.value(0), QStringLiteral(SPINBAR_VERSION));
        QCOMPARE(own.count("<ru-RU>"_L1), own.count("<en-EN>"_L1));
    }
};

QTEST_GUILESS_MAIN(TestChangeLog)
#include "tst_changelog.moc"
