#include "scripts/scriptexpansion.h"
#include "scripts/scriptplayer.h"
#include "scripts/speedscript.h"

#include "files.h"
#include "rows.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <memory>

using namespace Qt::StringLiterals;

/// What the player orders, one word each: speeds as numbers, "stop", "cycle 1/3", "ended".
class TestSpeedScript : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_now = 1'700'000'000'000;
        m_log.clear();
        m_player = std::make_unique<ScriptPlayer>(nullptr, [this] { return m_now; });
        connect(m_player.get(), &ScriptPlayer::speedDue, this,
                [this](double v) { m_log += QString::number(v); });
        connect(m_player.get(), &ScriptPlayer::stopDue, this, [this] { m_log += u"stop"_s; });
        connect(m_player.get(), &ScriptPlayer::cycleChanged, this,
                [this] { m_log += u"cycle "_s + m_player->cycleText(); });
        connect(m_player.get(), &ScriptPlayer::ended, this, [this] { m_log += u"ended"_s; });
    }

    void firstCommandIsTheSecondEntryAfterOneStep()
    {
        start(ramp(), true, 1);
        QCOMPARE(m_player->table().size(), 50);
        advance(150);
        QCOMPARE(m_log, QStringList{u"cycle 1"_s});
        advance(50);
        QCOMPARE(m_log.last(), QString::number(m_player->table().at(1)));
        // Each entry once, and a late tick skips instead of catching up.
        advance(150);
        m_now += 600;
        m_player->tick();
        QCOMPARE(m_log, QStringList({u"cycle 1"_s, u"1.2"_s, u"3"_s}));
    }

    void cyclesAreCountedToTheLimit()
    {
        start(ramp(), false, 3);
        advance(9950);
        QCOMPARE(m_log.last(), u"30"_s);
        advance(50);
        QCOMPARE(m_log.last(), u"cycle 2/3"_s);
        advance(200);
        QCOMPARE(m_log.last(), u"1.2"_s); // again the second entry
        QSignalSpy cursor(m_player.get(), &ScriptPlayer::cursorMoved);
        advance(19800);
        QCOMPARE(m_log.mid(m_log.size() - 3), QStringList({u"cycle "_s, u"stop"_s, u"ended"_s}));
        QCOMPARE(cursor.last().at(0).toDouble(), -1.0);
        QVERIFY(!m_player->isRunning());
        advance(1000);
        QCOMPARE(m_log.last(), u"ended"_s);
    }

    void endsWithAnotherChoiceAndWithNothingToPlay()
    {
        start(ramp(), true, 1);
        advance(10000 * 5);
        QCOMPARE(m_player->cycleText(), u"6"_s); // endless, so without a total
        m_player->setScript(nullptr);
        QCOMPARE(m_log.last(), u"stop"_s);
        QVERIFY(!m_player->isRunning() && m_player->table().isEmpty());

        start({{0, 5}}, true, 1);
        advance(150);
        QVERIFY(m_player->isRunning());
        advance(50);
        QCOMPARE(m_log, QStringList({u"cycle 1"_s, u"cycle "_s, u"stop"_s, u"ended"_s}));
    }

    void clockThatJumpsMovesTheIndex()
    {
        start(ramp(), false, 2);
        advance(1000);
        m_now -= 600;
        m_player->tick();
        QCOMPARE(m_log.last(), QString::number(m_player->table().at(2)));
        m_now += 600;
        QSignalSpy cursor(m_player.get(), &ScriptPlayer::cursorMoved);
        const QStringList before = m_log;
        m_now -= 3'600'000;
        advance(500);
        QCOMPARE(m_log, before);
        QCOMPARE(cursor.last().at(0).toDouble(), 0.0);
        m_now += 3'600'000;
        advance(500);
        QCOMPARE(m_log.last(), QString::number(m_player->table().at(10)));
        m_now += 86'400'000;
        m_player->tick();
        QCOMPARE(m_log.last(), u"cycle 2/2"_s);
        QCOMPARE(cursor.last().at(0).toDouble(), 10.0);
    }

    void timerDrivesARun()
    {
        m_player = std::make_unique<ScriptPlayer>();
        QSignalSpy ended(m_player.get(), &ScriptPlayer::ended);
        start({}, true, 1);
        QVERIFY(ended.wait());
    }

    void pointsAreReadLineByLine()
    {
        const ScriptPoints two{{0, 0}, {60, 25.5}};
        QCOMPARE(scriptPointsText(two), u"0.000:0.00\r\n60.000:25.50"_s);
        QCOMPARE(scriptPointsText({{1.0004, 29.999}}), u"1.000:30.00"_s);
        for (const QString &text : {u"0.000:0.00\r\n60.000:25.50"_s, u"\n 0 : 0 \n\n\r\n60:25.5\n"_s,
                                    u":0::0:\n60:25.5"_s, u"0:0\n1\n1:2:3\nx:1\n1:y\n1,5:2\n:\n60:25.5"_s,
                                    u"0:0\nnan:1\n1:inf\n-inf:1\n1e999:1\n60:25.5"_s})
            QCOMPARE(parseScriptPoints(text), two);
        // Order, equals and signs stay.
        QCOMPARE(parseScriptPoints(u"5:1\n1:-2\n1:3"_s), (ScriptPoints{{5, 1}, {1, -2}, {1, 3}}));
        QCOMPARE(parseScriptPoints({}), ScriptPoints());
    }

    void rampsAndLevelsAreSampledOnTheStep_data()
    {
        using Table = QList<double>;
        const auto row = columns<ScriptPoints, int, Table>("points", "duration", "table");
        row("one point", {{0, 5}}, 10, {});
        row("ramp", {{0, 0}, {1, 5}}, 1, {1, 2, 3, 4, 5});
        row("level before and behind", {{0.4, 2}, {0.8, 4}}, 2, {2, 2, 3, 4, 4, 4, 4, 4, 4});
        row("point behind the duration", {{0, 0}, {2, 10}}, 1, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
        // 2.5 steps count as 3, and the next ramp starts from its own point.
        row("part of a step", {{0, 0}, {0.5, 5}, {0.9, 7}}, 1, {2, 4, 5, 6, 7});
        row("equal times jump", {{0, 0}, {0.4, 2}, {0.4, 9}}, 1, {1, 9, 9, 9});
        row("going back contributes nothing", {{0.4, 1}, {0, 3}, {0.4, 5}}, 1, {1, 3, 4, 5});
        row("negative time and speed", {{-0.4, -4}, {0.2, 2}}, 1, {-2, 0, 2, 2});
        Table longest;
        for (int k = 1; k <= 50'000; ++k)
            longest.append(30.0 * k / 50'000);
        row("longest", {{0, 0}, {10'000, 30}}, 10'000, longest);
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

    void damagedPointsStayWithinBounds()
    {
        const double huge = 1e308;
        ScriptPoints zigzag;
        for (int i = 0; i < 1'000'000; ++i)
            zigzag.append({i % 2 ? 1e9 : 0.0, double(i)});
        for (const ScriptPoints &points :
             {ScriptPoints{{0, 1}, {huge, 2}}, ScriptPoints{{huge, 1}, {huge, 2}},
              ScriptPoints{{-huge, -huge}, {huge, huge}},
              ScriptPoints{{qQNaN(), 1}, {1, qQNaN()}, {2, qInf()}, {qInf(), 3}}, zigzag}) {
            const QList<double> table = expandScript(points, 10);
            QVERIFY(!table.isEmpty() && table.size() <= MaxScriptTableEntries);
            QVERIFY(std::all_of(table.begin(), table.end(), [](double v) { return std::isfinite(v); }));
        }
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
        QCOMPARE(contents(path),
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
        QVERIFY(writeFile(path, "<SpeedScript><DurationSeconds>99999</DurationSeconds>"
                                "<Infinite>false</Infinite><Loops>0</Loops><Points>0:1</Points>"));
        SpeedScript script(path);
        QCOMPARE(script.cycleLimit(), -1);
        script.reload();
        script.parsePoints();
        QCOMPARE(script.getDurationSeconds(), 10000);
        QCOMPARE(script.cycleLimit(), 1);
        QVERIFY(script.table().isEmpty());
    }

private:
    static ScriptPoints ramp() { return {{0, 0}, {10, 30}}; }

    void start(const ScriptPoints &points, bool infinite, int loops)
    {
        SpeedScript script{QString()};
        script.setPointList(points);
        script.setInfinite(infinite);
        script.setLoops(loops);
        m_player->setScript(&script);
        m_log.clear();
        m_player->setRunning(true);
    }

    void advance(int ms)
    {
        for (int passed = 0; passed < ms; passed += 50) {
            m_now += 50;
            m_player->tick();
        }
    }

    qint64 m_now = 0;
    QStringList m_log;
    std::unique_ptr<ScriptPlayer> m_player;
};

QTEST_GUILESS_MAIN(TestSpeedScript)
#include "tst_speedscript.moc"
