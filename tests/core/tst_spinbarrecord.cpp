#include "core/spinbarrecord.h"

#include "core/experimentfolder.h"
#include "rows.h"

#include <QJsonArray>
#include <QRandomGenerator>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

QString liveLine(qint64 time, qint64 counter)
{
    return u"S,1,0,28,28,28,28,%1,%2"_s.arg(counter, 0, 16).arg(time, 0, 16);
}

/// rad/s of the motor for so many thousandths of a rotation in one status period.
double speedOf(int steps)
{
    return steps * 6.283185307179586 / 200.0;
}

QList<qint64> starts(const QList<ExperimentItem> &items)
{
    QList<qint64> result;
    for (const ExperimentItem &item : items)
        result.append(item.start);
    return result;
}

} // namespace

class TestSpinbarRecord : public QObject
{
    Q_OBJECT

private slots:
    void recordingIsOnDiskLineByLine()
    {
        const ExperimentFolder folder;
        SpinbarRecord record(folder.path(), QDateTime::fromMSecsSinceEpoch(1700000000123));
        QCOMPARE(record.name(), u"Rat 7"_s);
        record.addStatus(liveLine(1000, 0));
        QVERIFY(!QFile::exists(folder.path() + "status.log"_L1));

        record.start();
        QCOMPARE(folder.experiment()["timestamp"_L1].toInteger(), 1700000000123);
        QCOMPARE(folder.experiment()["ts"_L1].toInteger(-1), 0);
        record.addStatus(liveLine(1000, 100));
        record.addStatus(u"S,1"_s);
        record.addStatus(u"S,zz,0,x,y"_s);
        QCOMPARE(folder.read("status.log"), "S;1;0;28;28;28;28;64;3e8\r\nS;1\r\nS;zz;0;x;y\r\n");
        QCOMPARE(record.firstDeviceTime(), 1000);

        record.addItem(400, 2000, 1500, 2, true, {});
        const QJsonObject row = folder.experiment()["items"_L1].toArray().first().toObject();
        QCOMPARE(row["start"_L1].toInteger(), 1000);
        QCOMPARE(folder.experiment()["ts"_L1].toInteger(), 1000);
        record.stop();
        record.addStatus(liveLine(1200, 200));
        QCOMPARE(folder.read("status.log").count('\n'), 3);
    }

    void liveSpeedsHaveOneEntryPerLineAfterTheFirst()
    {
        const ExperimentFolder folder;
        SpinbarRecord record(folder.path(), QDateTime::currentDateTime());
        record.start();
        for (const auto &[time, counter] : {std::pair(1000, 0), {1200, 200}, {1400, 100}})
            record.addStatus(liveLine(time, counter));
        QCOMPARE(record.speeds(), QList<double>({speedOf(200), speedOf(-100)}));
        QCOMPARE(record.durationSeconds(), 0.4);
        // The clock jumps back: the step is taken from the latest time, not from the latest line.
        record.addStatus(liveLine(600, 500));
        QCOMPARE(record.speeds().last(), speedOf(400));
        QCOMPARE(record.durationSeconds(), 0.8);
        record.stop();
        QCOMPARE(record.speeds(), QList<double>({speedOf(-500), speedOf(200), speedOf(-100)}));
    }

    void twoLinesAreNoDuration()
    {
        const ExperimentFolder folder;
        folder.writeLog({{1000, 0}, {1200, 200}});
        SpinbarRecord record(folder.path(), {});
        QCOMPARE(record.durationSeconds(), 0.0);
        QVERIFY(record.speeds().isEmpty());
        QVERIFY(record.isRat());
        QCOMPARE(record.firstDeviceTime(), 1000);
    }

    void normalizedRowsAreSortedAndCollide()
    {
        const ExperimentFolder folder;
        folder.writeLog({{5000, 0}, {5200, 1}, {9000, 2}});
        SpinbarRecord record(folder.path(), {});
        record.addItem(7000, 8000, 10, 0, false, {});
        record.addItem(6000, 20000, 20, 1, true, {});
        record.addItem(6000, 8000, 30, 2, true, {});
        record.addItem(6000, 8000, 40, 3, true, {});
        record.addItem(100, 8000, 50, 3, true, {});
        const QList<ExperimentItem> rows = record.normalizedItems();
        QCOMPARE(starts(rows), QList<qint64>({0, 1000, 1001, 2000}));
        QCOMPARE(rows[2].rotations, 40.0);
        // The last device time itself is the limit, so 20000 - 5000 becomes 9000 and not 4000.
        QCOMPARE(rows[1].end, 9000);
        QVERIFY(!record.isRat());
        QCOMPARE(record.rawItems().size(), 5);
    }

    void withoutLogEveryStayEndsAtZero()
    {
        const ExperimentFolder folder;
        SpinbarRecord record(folder.path(), {});
        record.addItem(7000, 8000, 10, 0, false, {});
        QCOMPARE(record.normalizedItems().first().end, 0);
        QCOMPARE(record.normalizedItems().first().start, 7000);
        QVERIFY(!record.isStatusLoaded());
        folder.writeLog({{7000, 0}, {8000, 1}});
        QCOMPARE(record.normalizedItems().first().end, 1000);
    }

    void speedTakesTheFirstLineWithinTheTolerance_data()
    {
        const auto row = columns<qint64, qint64, double>("from", "to", "speed");
        using Limits = std::numeric_limits<qint64>;
        row("7 ms early and late", 993, 2007, 2.0);
        row("8 ms early", 992, 2000, 0.0);
        row("8 ms late", 1000, 2008, 0.0);
        row("backwards is positive", 2000, 1000, 2.0);
        row("same line", 1000, 1003, 0.0);
        row("first match, not the nearest", 1000, 3007, 4.0);
        row("ends of the range", Limits::min(), Limits::max(), 0.0);
    }

    void speedTakesTheFirstLineWithinTheTolerance()
    {
        QFETCH(qint64, from);
        QFETCH(qint64, to);
        const ExperimentFolder folder;
        folder.writeLog({{1000, 0}, {2000, 2000}, {3000, 8000}, {3007, 100000}});
        SpinbarRecord record(folder.path(), {});
        QTEST(record.speedBetween(from, to), "speed");
    }

    void lookupEqualsALinearSearchOverADisorderedLog()
    {
        QRandomGenerator random(20240309);
        StatusCounters counters;
        QMap<qint64, qint64> expected;
        for (qint64 line = 0, time = 0; line < 20000; ++line) {
            time += random.bounded(100) == 0 ? -random.bounded(5000) : random.bounded(25);
            counters.insert(time, line);
            expected.insert(time, line);
            if (line % 500 != 0)
                continue;
            QCOMPARE(counters.latest(), (StatusSample{expected.lastKey(), expected.last()}));
            const qint64 wanted = random.bounded(1 + int(expected.lastKey()));
            const auto match = std::find_if(expected.keyBegin(), expected.keyEnd(),
                                            [&](qint64 key) { return qAbs(wanted - key) < 8; });
            const StatusSample *found = counters.firstMatch(wanted, 8);
            QCOMPARE(found != nullptr, match != expected.keyEnd());
            if (found)
                QCOMPARE(*found, (StatusSample{*match, expected[*match]}));
        }
        QList<qint64> keys;
        QList<qint64> values;
        for (const StatusSample &sample : counters.samples()) {
            keys.append(sample.timeMs);
            values.append(sample.counter);
        }
        QCOMPARE(keys, expected.keys());
        QCOMPARE(values, expected.values());
    }

    void extremeTimesAndCountersStayDefined()
    {
        constexpr qint64 Lowest = std::numeric_limits<qint64>::min();
        constexpr qint64 Highest = std::numeric_limits<qint64>::max();
        const ExperimentFolder folder;
        SpinbarRecord record(folder.path(), QDateTime::fromMSecsSinceEpoch(Highest));
        record.start();
        record.addStatus(u"S,1,0,-7fffffffffffffff,-7fffffffffffffff"_s);
        record.addStatus(u"S,1,0,7fffffffffffffff,7fffffffffffffff"_s);
        record.addStatus(u"S,1,0,ffffffffffffffff,0"_s);
        QVERIFY(record.speeds().first() > 1e17);
        record.addItem(Highest, Highest, 1e300, std::numeric_limits<int>::max(), true, {});
        record.addItem(Highest, Lowest, 1, Lowest % 1000, false, {});
        QCOMPARE(record.normalizedItems().size(), 1);
        QCOMPARE(record.durationSeconds(), double(std::numeric_limits<quint64>::max()) / 1000);
        QCOMPARE(record.experimentTable(true).size(), 1 + 1 + 1 + 3);
    }

    void whatIsNotOnTheDiskIsTold()
    {
#ifdef Q_OS_LINUX
        const ExperimentFolder folder;
        QVERIFY(QFile::link(u"/dev/full"_s, folder.path() + "status.log"_L1));
        SpinbarRecord record(folder.path(), QDateTime::currentDateTime());
        record.start();
        QCOMPARE(record.writeError(), QString());
        record.addStatus(liveLine(1000, 0));
        QVERIFY2(record.writeError().contains("status.log"_L1), qPrintable(record.writeError()));
        record.addItem(1000, 2000, 1, 0, true, {});
        QCOMPARE(folder.experiment()["items"_L1].toArray().size(), 1);
#endif
        const ExperimentFolder blocked;
        QVERIFY(QDir().mkpath(blocked.path() + "experiment.json"_L1));
        SpinbarRecord unsaved(blocked.path(), QDateTime::currentDateTime());
        unsaved.start();
        QVERIFY2(unsaved.writeError().contains("experiment.json"_L1), qPrintable(unsaved.writeError()));
        QVERIFY(QDir().rmdir(blocked.path() + "experiment.json"_L1));
        // The next save brings all of it.
        unsaved.stop();
        QCOMPARE(unsaved.writeError(), QString());
    }

    void afterReleaseTheLogIsReadAgain()
    {
        const ExperimentFolder folder;
        folder.writeLog({{1000, 0}, {2000, 2000}, {3000, 4000}});
        SpinbarRecord record(folder.path(), {});
        QCOMPARE(record.durationSeconds(), 2.0);
        folder.writeLog({{1000, 0}, {2000, 2000}, {4000, 4000}});
        QCOMPARE(record.durationSeconds(), 2.0);
        record.releaseStatus();
        QCOMPARE(record.durationSeconds(), 3.0);
        record.releaseStatus();
        QVERIFY(QFile::remove(folder.path() + "status.log"_L1));
        QCOMPARE(record.counters().samples().capacity(), 0U);
        QCOMPARE(record.speeds().capacity(), 0);
    }
};

QTEST_GUILESS_MAIN(TestSpinbarRecord)
#include "tst_spinbarrecord.moc"
