#include "framework/common/texthelper.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestTextHelper : public QObject
{
    Q_OBJECT

private slots:
    void timeShowsHoursOnlyFromOneHourOn_data()
    {
        QTest::addColumn<double>("seconds");
        QTest::addColumn<bool>("milliseconds");
        QTest::addColumn<QString>("text");
        QTest::newRow("fraction is cut") << 75.5 << false << u"01:15"_s;
        QTest::newRow("with milliseconds") << 75.5 << true << u"01:15.500"_s;
        QTest::newRow("just below a minute") << 59.999 << true << u"00:59.999"_s;
        QTest::newRow("not rounded up to a minute") << 59.9999 << true << u"00:59.999"_s;
        QTest::newRow("one hour") << 3600.0 << false << u"01:00:00"_s;
        QTest::newRow("hours, minutes, seconds") << 3661.0 << false << u"01:01:01"_s;
        QTest::newRow("over a day") << 360000.0 << false << u"100:00:00"_s;
        QTest::newRow("not a number") << qQNaN() << false << u"00:00"_s;
    }

    void timeShowsHoursOnlyFromOneHourOn()
    {
        QFETCH(double, seconds);
        QFETCH(bool, milliseconds);
        QTEST(TextHelper::TimeToText(seconds, milliseconds), "text");
    }

    void fileStampIsSafeAndSorts()
    {
        const QDateTime moment({2024, 3, 9}, {7, 5, 1, 42});
        QCOMPARE(TextHelper::DateTimeFileString(moment, false), u"2024.03.09-07.05.01"_s);
        QCOMPARE(TextHelper::DateTimeFileString(moment, true), u"2024.03.09-07.05.01.042"_s);
        QVERIFY(!TextHelper::DateTimeFileString({}, false).isEmpty());
    }

    void splittingDropsWhatIsEmptyAfterTrimming()
    {
        QCOMPARE(TextHelper::splitAndTrim(u" /a/ b //c/ "_s, u"/"_s), QStringList({u"a"_s, u"b"_s, u"c"_s}));
        QCOMPARE(TextHelper::multisplit(u"a;b,c;"_s, {u";"_s, u","_s}),
                 QStringList({u"a"_s, u"b"_s, u"c"_s, QString()}));
        QCOMPARE(TextHelper::trim(u"ababXab"_s, u"ab"_s), u"X"_s);
        QCOMPARE(TextHelper::trim(u"--"_s, QChar(u'-')), QString());
        QCOMPARE(TextHelper::join({u"a"_s, u"b"_s}, u", "_s, u"<"_s, u">"_s), u"<a>, <b>"_s);
    }

    void numbersChooseTheirFormByPrecision()
    {
        QCOMPARE(TextHelper::numToStr(0.5, 2), u"0.50"_s);
        QCOMPARE(TextHelper::numToStr(1234567.0, -1), u"1.23457e+06"_s);
    }
};

QTEST_GUILESS_MAIN(TestTextHelper)
#include "tst_texthelper.moc"
