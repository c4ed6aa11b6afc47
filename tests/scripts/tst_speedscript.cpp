#include "scripts/scriptexpansion.h"
#include "scripts/speedscript.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

QByteArray fileBytes(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestSpeedScript : public QObject
{
    Q_OBJECT

private slots:
    void pointsAreReadLineByLine_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<ScriptPoints>("points");
        const ScriptPoints two{{0, 0}, {60, 25.5}};
        QTest::newRow("as written") << u"0.000:0.00\r\n60.000:25.50"_s << two;
        QTest::newRow("plain line ends, blanks, empty lines") << u"\n 0 : 0 \n\n\r\n60:25.5\n"_s << two;
        QTest::newRow("empty parts are dropped") << u":0::0:\n60:25.5"_s << two;
        QTest::newRow("bad lines") << u"0:0\n1\n1:2:3\nx:1\n1:y\n1,5:2\n:\n60:25.5"_s << two;
        QTest::newRow("not finite") << u"0:0\nnan:1\n1:inf\n-inf:1\n1e999:1\n60:25.5"_s << two;
        QTest::newRow("order, equals and signs stay")
            << u"5:1\n1:-2\n1:3"_s << ScriptPoints{{5, 1}, {1, -2}, {1, 3}};
        QTest::newRow("empty") << QString() << ScriptPoints();
    }

    void pointsAreReadLineByLine()
    {
        QFETCH(QString, text);
        QTEST(parseScriptPoints(text), "points");
    }

    void pointsAreWrittenWithFixedDecimals()
    {
        QCOMPARE(scriptPointsText({{0, 0}, {60, 25.5}}), u"0.000:0.00\r\n60.000:25.50"_s);
        QCOMPARE(scriptPointsText({{1.0004, 29.999}}), u"1.000:30.00"_s);
        QCOMPARE(scriptPointsText({}), QString());
    }

    void rampsAndLevelsAreSampledOnTheStep_data()
    {
        QTest::addColumn<ScriptPoints>("points");
        QTest::addColumn<int>("duration");
        QTest::addColumn<QList<double>>("table");
        using Table = QList<double>;
        QTest::newRow("no point") << ScriptPoints() << 10 << Table();
        QTest::newRow("one point") << ScriptPoints{{0, 5}} << 10 << Table();
        QTest::newRow("ramp") << ScriptPoints{{0, 0}, {1, 5}} << 1 << Table{1, 2, 3, 4, 5};
        QTest::newRow("level before and behind")
            << ScriptPoints{{0.4, 2}, {0.8, 4}} << 2 << Table{2, 2, 3, 4, 4, 4, 4, 4, 4};
        QTest::newRow("point behind the duration")
            << ScriptPoints{{0, 0}, {2, 10}} << 1 << Table{1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
        // 2.5 steps count as 3, and the next ramp starts from its own point.
        QTest::newRow("part of a step")
            << ScriptPoints{{0, 0}, {0.5, 5}, {0.9, 7}} << 1 << Table{2, 4, 5, 6, 7};
        QTest::newRow("equal times jump")
            << ScriptPoints{{0, 0}, {0.4, 2}, {0.4, 9}} << 1 << Table{1, 9, 9, 9};
        QTest::newRow("going back contributes nothing")
            << ScriptPoints{{0.4, 1}, {0, 3}, {0.4, 5}} << 1 << Table{1, 3, 4, 5};
        QTest::newRow("negative time and speed")
            << ScriptPoints{{-0.4, -4}, {0.2, 2}} << 1 << Table{-2, 0, 2, 2};
    }

    void rampsAndLevelsAreSampledOnTheStep()
    {
        QFETCH(ScriptPoints, points);
        QFETCH(int, duration);
        QFETCH(QList<double>, table);
        const QList<double> actual = expandScript(points, duration);
        QCOMPARE(actual.size(), table.size());
        for (qsizetype k = 0; k < table.size(); ++k)
            QVERIFY2(std::abs(actual[k] - table[k]) < 1e-9, qPrintable(QString::number(k)));
    }

    void longestScriptFollowsItsLine()
    {
        const QList<double> table = expandScript({{0, 0}, {10000, 30}}, 10000);
        QCOMPARE(table.size(), 50000);
        for (qsizetype k = 0; k < table.size(); ++k)
            QVERIFY(std::abs(table[k] - 30.0 * double(k + 1) / 50000) < 1e-6);
    }

    void damagedPointsStayWithinBounds_data()
    {
        QTest::addColumn<ScriptPoints>("points");
        const double huge = 1e308;
        QTest::newRow("huge time") << ScriptPoints{{0, 1}, {huge, 2}};
        QTest::newRow("huge lead-in") << ScriptPoints{{huge, 1}, {huge, 2}};
        QTest::newRow("difference overflows") << ScriptPoints{{-huge, -huge}, {huge, huge}};
        QTest::newRow("not finite") << ScriptPoints{{qQNaN(), 1}, {1, qQNaN()}, {2, qInf()}, {qInf(), 3}};
        ScriptPoints zigzag;
        for (int i = 0; i < 1'000'000; ++i)
            zigzag.append({i % 2 ? 1e9 : 0.0, double(i)});
        QTest::newRow("a million points back and forth") << zigzag;
    }

    void damagedPointsStayWithinBounds()
    {
        QFETCH(ScriptPoints, points);
        const QList<double> table = expandScript(points, 10);
        QVERIFY(!table.isEmpty() && table.size() <= MaxScriptTableEntries);
        QVERIFY(std::all_of(table.begin(), table.end(), [](double v) { return std::isfinite(v); }));
    }

    void fileHoldsThePropertiesInOrder()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"Разгон 1.xml"_s);
        SpeedScript script(path);
        script.setPointList({{0, 0}, {60, 25.5}});
        QSignalSpy changed(&script, &SpeedScript::changedPoints);
        QSignalSpy saved(&script, &SpeedScript::saved);
        script.storePoints();
        script.storePoints();
        QCOMPARE(changed.size(), 1);
        QCOMPARE(saved.size(), 2);
        QCOMPARE(fileBytes(path),
                 "<?xml version=\"1.0\"?>\n<SpeedScript>\n    <DurationSeconds>10</DurationSeconds>\n"
                 "    <Infinite>true</Infinite>\n    <Loops>5</Loops>\n"
                 "    <Points>0.000:0.00\r\n60.000:25.50</Points>\n</SpeedScript>\n"_ba);

        SpeedScript read(path);
        QVERIFY(read.reload());
        QVERIFY(read.pointList().isEmpty());
        read.parsePoints();
        QCOMPARE(read.pointList(), script.pointList());
    }

    void valuesOfAFileAreBroughtIntoRange()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"wild.xml"_s);
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("<SpeedScript><DurationSeconds>99999</DurationSeconds><Infinite>false</Infinite>"
                   "<Loops>0</Loops><Points>0:1</Points>");
        file.close();
        SpeedScript script(path);
        QCOMPARE(script.cycleLimit(), -1);
        script.reload();
        script.parsePoints();
        QCOMPARE(script.getDurationSeconds(), 10000);
        QCOMPARE(script.cycleLimit(), 1);
        QVERIFY(script.table().isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestSpeedScript)
#include "tst_speedscript.moc"
