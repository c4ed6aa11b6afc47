#include "framework/common/xlsxhelper.h"

#include "files.h"
#include "framework/common/hindrance.h"
#include "framework/common/workbookreader.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <QTextCodec>

#include <cmath>
#include <functional>

using namespace Qt::StringLiterals;
using namespace WorkbookReader;
using XLSXHelper::Sheet;

namespace {

const QByteArray Mark = "\xEF\xBB\xBF";

/// Two sheets of many equal cells.
bool write(const QString &path, const WorkStep &step)
{
    const QList<Sheet> sheets(2, {u"n"_s, XLSXHelper::Rows(10000, QList<QVariant>(5, 1))});
    return path.endsWith(".csv"_L1) ? XLSXHelper::dataToCSV(sheets, path, u";"_s, u"\r\n"_s, step)
                                    : XLSXHelper::dataToXLSX(sheets, path, step);
}

} // namespace

class TestXlsxHelper : public QObject
{
    Q_OBJECT

private slots:
    void csv()
    {
        const QTemporaryDir folder;
        const auto written = [path = folder.filePath(u"Таблица 1.csv"_s)](const QList<Sheet> &sheets) {
            return XLSXHelper::dataToCSV(sheets, path, u";"_s, u"\r\n"_s) ? content(path) : QByteArray();
        };
        QCOMPARE(written({}), Mark);
        QCOMPARE(written({{u"n"_s, {}}}), Mark + "n\r\n\r\n\r\n");
        QCOMPARE(written({{u"n"_s, {{u"a"_s, u"b"_s}, {}, {u"Ё;\"x"_s}}}}),
                 Mark + "n\r\na;b;\r\n\r\nЁ;\"x;\r\n\r\n\r\n");
        QCOMPARE(written({{u"n"_s, {{0.1, 5.0, 100000.0, 7, std::nan("")}}}}),
                 Mark + "n\r\n0.1;5;1e+05;7;0;\r\n\r\n\r\n");
        QCOMPARE(written({{u"n"_s, {{1}}}, {u"m"_s, {}}}), Mark + "n\r\n1;\r\n\r\n\r\nm\r\n\r\n\r\n");
        QCOMPARE(QTextCodec::codecForLocale()->name(), "UTF-8");
    }

    void workbookHoldsNumbersAndTexts()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"Таблица 1.xlsx"_s);
        const QString longText(40000, u'Ж');
        const XLSXHelper::Rows rows{{u"=1+1"_s, u"https://example.org"_s, 1.5, 7, u"12"_s},
                                    {},
                                    {u""_s, std::nan(""), HUGE_VAL, 1.0 / 3},
                                    {u"_x0041_"_s, u"a\0\uFFFF"_s, longText},
                                    {u"{R} Крыса <&>"_s}};
        QVERIFY(XLSXHelper::dataToXLSX({{u"one"_s, rows}, {u"two"_s, {}}}, path));
        QCOMPARE(
            cells(path, 1),
            QStringList({u"A1==1+1"_s, u"B1=https://example.org"_s, u"C1#1.5"_s, u"D1#7"_s, u"E1=12"_s,
                         u"B3#0"_s, u"C3#0"_s, u"D3#0.3333333333333333"_s, u"A4=_x005F_x0041_"_s,
                         u"B4=a\uFFFD\uFFFD"_s, "C4="_L1 + longText.first(32767), u"A5={R} Крыса <&>"_s}));
        QVERIFY(cells(path, 2).isEmpty());
        QCOMPARE(attributes(part(path, u"xl/workbook.xml"_s), "sheet"_L1, "name"_L1),
                 QStringList({u"one"_s, u"two"_s}));
        // The reader's own margin of 5 of 7 pixels is part of the stored width.
        const QStringList widths =
            attributes(part(path, u"xl/worksheets/sheet1.xml"_s), "col"_L1, "width"_L1);
        QCOMPARE(widths.size(), 5);
        QCOMPARE(qRound(widths[0].toDouble() - 0.71), int(u"{R} Крыса <&>"_s.size()) + 2);
        QCOMPARE(qRound(widths[2].toDouble() - 0.71), 60);
        QCOMPARE(qRound(widths[4].toDouble() - 0.71), 8);
    }

    void sheetNames()
    {
        const auto check = [](const QStringList &wanted, const QStringList &names) {
            QCOMPARE(XLSXHelper::sheetNames(wanted), names);
            QList<Sheet> sheets;
            for (const QString &name : wanted)
                sheets.append({name, {{1}}});
            const QTemporaryDir folder;
            const QString path = folder.filePath(u"names.xlsx"_s);
            QVERIFY(XLSXHelper::dataToXLSX(sheets, path));
            QCOMPARE(attributes(part(path, u"xl/workbook.xml"_s), "sheet"_L1, "name"_L1), names);
        };
        const QString thirty(30, u'я');
        check({u"2024.03.09-07.05.01.042"_s}, {u"2024.03.09-07.05.01.042"_s});
        check({u"[a]:*?/\\b\n"_s}, {u"_a______b_"_s});
        check({u"a"_s, u""_s, u" ' "_s}, {u"a"_s, u"Sheet2"_s, u"Sheet3"_s});
        check({u"History"_s}, {u"History (2)"_s}); // it is reserved
        check({u"Сводка"_s, u"сводка"_s, u"СВОДКА"_s}, {u"Сводка"_s, u"сводка (2)"_s, u"СВОДКА (3)"_s});
        check({u"a (2)"_s, u"a"_s, u"A"_s}, {u"a (2)"_s, u"a"_s, u"A (3)"_s});
        check({thirty + u"abc"_s, thirty + u"abd"_s}, {thirty + u"a"_s, thirty.first(27) + u" (2)"_s});
        check({thirty + u"\U0001F400"_s}, {thirty}); // no half of a pair
        check({u"'Rat's'"_s}, {u"Rat's"_s});
    }

    void failuresLeaveNothingAndKeepWhatWasThere()
    {
        const QTemporaryDir folder;
        const QString missing = folder.filePath(u"none/a"_s);
        QVERIFY(!XLSXHelper::dataToCSV({{1}}, missing, u"n"_s, u";"_s, u"\r\n"_s));
        QVERIFY(!XLSXHelper::dataToXLSX({{1}}, missing, u"n"_s));
        QVERIFY(!XLSXHelper::dataToXLSX({}, folder.filePath(u"a"_s)));
        QVERIFY(!XLSXHelper::dataToCSV({{1}}, folder.path(), u"n"_s, u";"_s, u"\r\n"_s));
        QVERIFY(QDir(folder.path()).isEmpty());

        const QString kept = folder.filePath(u"kept.xlsx"_s);
        QVERIFY(XLSXHelper::dataToXLSX({{1}}, kept, u"n"_s));
        const QByteArray before = content(kept);
        QVERIFY(!XLSXHelper::dataToXLSX({QList<QVariant>(20000, 1)}, kept, u"too wide"_s));
        QCOMPARE(content(kept), before);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), {u"kept.xlsx"_s});
    }

    void whatIsNotWrittenToItsEndLeavesTheOldFile()
    {
        const auto check = [](const char *trouble, const std::function<bool(const QString &)> &writeTo) {
            const bool isNone = qstrcmp(trouble, "none") == 0;
            for (const QString &name : {u"kept.csv"_s, u"kept.xlsx"_s}) {
                const QTemporaryDir folder;
                QFile::setPermissions(folder.path(), QFile::Permissions(0x7777));
                const QString path = folder.filePath(name);
                QVERIFY(writeFile(path, "old"));
                QVERIFY2(writeTo(path) == isNone, trouble);
                QVERIFY2((content(path) == "old") != isNone, trouble);
                QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), {name});
            }
        };
        int steps = 0;
        check("none", [&](const QString &path) { return write(path, [&] { return ++steps > 0; }); });
        QVERIFY(steps >= 4);
        check("ended at once", [](const QString &path) { return write(path, [] { return false; }); });
        check("ended at the end", [](const QString &path) {
            int done = 0;
            return write(path, [&done] { return ++done < 2; });
        });
#ifdef Q_OS_LINUX
        check("full disk", [](const QString &path) {
            const FileSizeLimit limit(2000);
            return write(path, {});
        });
        check("full temporary disk", [](const QString &path) {
            // The workbook itself has room, but not what it is packed from.
            const FileSizeLimit limit(100'000);
            return write(path, {});
        });
        check("read-only file", [](const QString &path) {
            QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadOther);
            const OrdinaryUser user;
            return write(path, {});
        });
#endif
    }
};

QTEST_GUILESS_MAIN(TestXlsxHelper)
#include "tst_xlsxhelper.moc"
