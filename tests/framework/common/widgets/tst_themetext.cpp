#include "framework/common/widgets/themetext.h"

#include <QTest>

using namespace Qt::StringLiterals;
using ThemeText::Variables;

class TestThemeText : public QObject
{
    Q_OBJECT

private slots:
    void aLineIsAVariableOnlyWithExactlyOneColonAndBlank_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<Variables>("variables");
        QTest::newRow("block") << u":root {\n    --a: #FFF;\r\n  --b: 1px solid;\n}\n"_s
                               << Variables{{u"--a"_s, u"#FFF"_s}, {u"--b"_s, u"1px solid"_s}};
        QTest::newRow("path keeps quotes and colon")
            << u"--i: \":/icons/check.svg\";"_s << Variables{{u"--i"_s, u"\":/icons/check.svg\""_s}};
        QTest::newRow("no blank") << u"--a:#FFF;"_s << Variables{};
        QTest::newRow("two colons") << u"--a: b: c;"_s << Variables{};
        QTest::newRow("no semicolon") << u"--a: b"_s << Variables{{u"--a"_s, u"b"_s}};
        QTest::newRow("later wins") << u"--a: 1;\n--a: 2;"_s << Variables{{u"--a"_s, u"2"_s}};
        QTest::newRow("null byte") << u"--a: 1;\n"_s + QChar(u'\0') + u"\n--b: 2;"_s
                                   << Variables{{u"--a"_s, u"1"_s}, {u"--b"_s, u"2"_s}};
        QTest::newRow("nothing") << QString() << Variables{};
    }

    void aLineIsAVariableOnlyWithExactlyOneColonAndBlank()
    {
        QFETCH(QString, text);
        QTEST(ThemeText::parse(text), "variables");
    }

    void replacementIsPlainTextInAscendingOrder_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<Variables>("variables");
        QTest::addColumn<QString>("result");
        QTest::newRow("all occurrences") << u"x --a y --a"_s << Variables{{u"--a"_s, u"1"_s}} << u"x 1 y 1"_s;
        QTest::newRow("no value") << u"x --b"_s << Variables{{u"--a"_s, u"1"_s}} << u"x --b"_s;
        QTest::newRow("shorter name destroys longer")
            << u"--a-b"_s << Variables{{u"--a"_s, u"1"_s}, {u"--a-b"_s, u"2"_s}} << u"1-b"_s;
        QTest::newRow("value names a later one")
            << u"--a"_s << Variables{{u"--a"_s, u"--b"_s}, {u"--b"_s, u"2"_s}} << u"2"_s;
        QTest::newRow("value names an earlier one")
            << u"--b"_s << Variables{{u"--a"_s, u"1"_s}, {u"--b"_s, u"--a"_s}} << u"--a"_s;
        QTest::newRow("value names itself") << u"--a"_s << Variables{{u"--a"_s, u"(--a)"_s}} << u"(--a)"_s;
        QTest::newRow("removal makes the name anew")
            << u"--aa"_s << Variables{{u"-a"_s, QString()}} << QString();
        QTest::newRow("empty name") << u"x"_s << Variables{{QString(), u"1"_s}} << u"x"_s;
    }

    void replacementIsPlainTextInAscendingOrder()
    {
        QFETCH(QString, text);
        QFETCH(Variables, variables);
        QTEST(ThemeText::substituted(text, variables), "result");
    }

    void multiplyingValuesStayBounded()
    {
        Variables bomb;
        for (int i = 0; i < 60; ++i)
            bomb.insert(u"--v%1;"_s.arg(i, 2, 10, '0'_L1), u"--v%1;"_s.arg(i + 1, 2, 10, '0'_L1).repeated(2));
        QVERIFY(ThemeText::substituted(u"--v00;"_s, bomb).size() <= 8 * 1024 * 1024);
        // The value makes the name anew together with what stands before it.
        const QString row = QString(1000, 'a'_L1) + 'b'_L1;
        QVERIFY(ThemeText::substituted(row, {{u"ab"_s, u"bba"_s}}).size() <= 8 * 1024 * 1024);
    }
};

QTEST_GUILESS_MAIN(TestThemeText)
#include "tst_themetext.moc"
