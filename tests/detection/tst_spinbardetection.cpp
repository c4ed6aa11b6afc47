#include "detection/spinbardetection.h"

#include "detection/lanethresholds.h"

#include "rows.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr int Covered = 33;
constexpr int Empty = 34;
constexpr qint64 Step = 200;

} // namespace

/// Runs samples through a lane and writes down what it tells.
class Lane : public QObject
{
public:
    Lane()
    {
        connect(&detection, &SpinbarDetection::found, this, [this] { log.append(u"found"_s); });
        connect(&detection, &SpinbarDetection::presentChanged, this,
                [this](bool present) { log.append(present ? u"present"_s : u"absent"_s); });
        connect(&detection, &SpinbarDetection::lost, this,
                [this](qint64 start, qint64 end, double rotations, int index) {
                    log.append(
                        u"lost %1 %2 %3 %4"_s.arg(start).arg(end).arg(rotations, 0, 'g', 17).arg(index));
                });
        connect(&detection, &SpinbarDetection::calcsChanged, this, [this] { ++samples; });
    }

    /// \a count samples, the first at the clock behind the last one.
    void feed(int value, int count, qint64 counterStep = 0)
    {
        for (int i = 0; i < count; ++i) {
            clock += Step;
            counter += counterStep;
            detection.update(value, counter, clock);
        }
    }

    QStringList take() { return std::exchange(log, {}); }

    SpinbarDetection detection{2, true};
    QStringList log;
    qint64 clock = 800;
    qint64 counter = 100;
    int samples = 0;
};

class TestSpinbarDetection : public QObject
{
    Q_OBJECT

private slots:
    void init() { SpinbarDetection::setTrailSeconds(2); }

    void threeCoveredSamplesMakePresence()
    {
        Lane lane;
        lane.clock = 200;
        lane.feed(Covered, 2);
        lane.feed(Empty, 1);
        lane.feed(Covered, 2, 10);
        QCOMPARE(lane.take(), QStringList());
        QCOMPARE(lane.detection.elapsed(), -1);
        QCOMPARE(lane.detection.rotations(), -1);
        lane.feed(Covered, 1, 10);
        QCOMPARE(lane.take(), QStringList({u"found"_s, u"present"_s}));
        QCOMPARE(lane.detection.startTime(), 800);
        QCOMPARE(lane.detection.elapsed(), 600);
        QCOMPARE(lane.detection.rotations(), -1);
        lane.feed(Covered, 1, 25);
        QCOMPARE(lane.detection.rotations(), 25);
        QCOMPARE(lane.samples, 7);
        QCOMPARE(lane.detection.lastValue(), Covered);
    }

    void fallNeedsTheWholeTrailUncovered()
    {
        Lane lane;
        lane.clock = 4800;
        lane.feed(Covered, 3);
        lane.take();
        lane.feed(Empty, 9);
        lane.feed(Covered, 1);
        lane.feed(Empty, 9);
        QCOMPARE(lane.take(), QStringList());
        lane.clock = 8800;
        lane.feed(Empty, 1);
        QCOMPARE(lane.take(), QStringList{u"lost 4800 7000 -0.10540540540540541 2"_s});
        QVERIFY(!lane.detection.isPresent());
    }

    void rotationsIncludeTheWait()
    {
        Lane lane;
        lane.feed(Covered, 3, 500);
        lane.feed(Empty, 10, 37);
        // 370 thousandths of the motor over 9 19/39 = 370 * 39 / 370 of the drum
        QVERIFY2(lane.log.last().startsWith("lost 800 1400 "), qPrintable(lane.log.last()));
        QVERIFY(qAbs(lane.log.last().section(u' ', 3, 3).toDouble() - 39.0) < 1e-12);
    }

    void trailComesFromTheProcessWideValue()
    {
        for (const auto &[trail, samples] : {std::pair{0.0, 1}, {0.3, 2}, {100.0, 500}}) {
            Lane lane;
            lane.feed(Covered, 3);
            lane.take();
            // The change reaches a run under way, and the minimum length has no say.
            SpinbarDetection::setTrailSeconds(trail);
            SpinbarDetection::setMinimumSeconds(100);
            lane.feed(Empty, samples - 1);
            QCOMPARE(lane.take(), QStringList());
            lane.feed(Empty, 1);
            QCOMPARE(lane.take().size(), 1);
        }
    }

    void highCountOfTheLastRunEndsTheNextAtOnce()
    {
        Lane lane;
        lane.feed(Covered, 3);
        lane.feed(Empty, 10);
        lane.take();
        lane.clock = 19800;
        lane.feed(Covered, 3);
        QCOMPARE(lane.take(), QStringList({u"found"_s, u"present"_s}));
        QCOMPARE(lane.detection.startTime(), 19800);
        lane.feed(Empty, 1);
        QCOMPARE(lane.take(), QStringList{u"lost 19800 18400 -0.10540540540540541 2"_s});
    }

    void clockNearZeroFindsAgainAndAgain()
    {
        Lane lane;
        lane.clock = -200;
        lane.feed(Covered, 4);
        QCOMPARE(lane.take(), QStringList({u"found"_s, u"present"_s, u"found"_s, u"present"_s}));
        QCOMPARE(lane.detection.startTime(), -200);
        QVERIFY(!lane.detection.isPresent());
    }

    void resetForgetsTheRunButNotTheHighCount()
    {
        Lane lane;
        lane.feed(Covered, 3);
        lane.feed(Empty, 9);
        lane.detection.reset();
        QVERIFY(!lane.detection.isPresent());
        lane.take();
        lane.feed(Covered, 2);
        QCOMPARE(lane.take(), QStringList());
        lane.feed(Covered, 1);
        QCOMPARE(lane.take(), QStringList({u"found"_s, u"present"_s}));
        lane.feed(Empty, 1);
        QCOMPARE(lane.take().size(), 1);
    }

    void thresholdTakesOneToFortyNine()
    {
        SpinbarDetection detection(0, false);
        QCOMPARE(detection.threshold(), 34);
        const QList<QPair<int, int>> steps{{50, 34}, {0, 34}, {49, 49}, {1, 1}, {-5, 1}};
        for (const auto &[asked, kept] : steps) {
            detection.setThreshold(asked);
            QCOMPARE(detection.threshold(), kept);
        }
    }

    void thresholdsComeFromText_data()
    {
        const auto row = columns<QString, int, QList<int>>("text", "lanes", "thresholds");
        row("what is no threshold is dropped", u";1;x;2;0;50;49;-4;4;5.5;"_s, 4, {1, 2, 49, 4});
        row("too few", u"1;2;3;50"_s, 4, {});
        row("of the other drum", u"1;2;3;4;5;6;7"_s, 4, {});
        row("mice", u"1;2;3;4;5;6;7"_s, 7, {1, 2, 3, 4, 5, 6, 7});
        row("never calibrated", {}, 7, {});
    }

    void thresholdsComeFromText()
    {
        QFETCH(QString, text);
        QFETCH(int, lanes);
        QTEST(LaneThresholds::fromText(text, lanes), "thresholds");
    }

    void extremeClocksAndCountersAreHarmless()
    {
        Lane lane;
        constexpr qint64 Lowest = std::numeric_limits<qint64>::min();
        constexpr qint64 Highest = std::numeric_limits<qint64>::max();
        for (int i = 0; i < 3; ++i)
            lane.detection.update(Covered, Lowest, Highest);
        QVERIFY(lane.detection.isPresent());
        for (int i = 0; i < 10; ++i)
            lane.detection.update(Empty, Highest, Lowest);
        QVERIFY(!lane.detection.isPresent());
        QCOMPARE(lane.log.size(), 3);
    }
};

QTEST_GUILESS_MAIN(TestSpinbarDetection)
#include "tst_spinbardetection.moc"
