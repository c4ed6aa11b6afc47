#include "scripts/widgets/graphgeometry.h"
#include "scripts/widgets/scriptcurve.h"

#include <QTest>

#include <algorithm>
#include <cmath>

using namespace GraphGeometry;
using namespace Qt::StringLiterals;

namespace {

constexpr Metrics Font{.labelWidth = 40, .rowHeight = 16};

/// How many, the first and the last, each with its place.
QString summary(const QList<Tick> &ticks)
{
    if (ticks.isEmpty())
        return {};
    const auto text = [](const Tick &tick) { return u"%1@%2"_s.arg(tick.label).arg(tick.position); };
    return u"%1 %2 %3"_s.arg(ticks.size()).arg(text(ticks.first()), text(ticks.last()));
}

} // namespace

class TestGraphGeometry : public QObject
{
    Q_OBJECT

private slots:
    void plotLeavesRoomForNumbersAndLanes()
    {
        const QMargins margins(16, 8, 8, 8);
        QCOMPARE(plotRectangle({900, 600}, margins, 20, Font, 4), QRect(56, 20, 816, 484));
        QCOMPARE(plotRectangle({900, 600}, margins, 20, Font, 0), QRect(56, 20, 816, 564));
        QVERIFY(plotRectangle({60, 30}, margins, 20, Font, 7).isEmpty());
    }

    void pixelsAreCutNotRounded()
    {
        for (const auto &[span, bounded] :
             {std::pair(3.0, 10.0), {12.5, 12.5}, {86'400, 1000}, {qQNaN(), 10}})
            QCOMPARE(boundedSpan(span), bounded);
        const Scale scale{.width = 800, .height = 300, .spanSeconds = 10};
        QCOMPARE(scale.xAt(9.99), 799);
        QCOMPARE(scale.yAt(0.05), 299);
        QCOMPARE(scale.yAt(30), 0);
        // Points of a damaged file.
        QCOMPARE(scale.xAt(std::nan("")), 0);
        QVERIFY(scale.xAt(1e300) > 1000 * scale.width);
        QVERIFY(scale.yAt(1e300) < -1000 * scale.height);
    }

    void ticks()
    {
        const auto times = [](int width, double span) {
            return summary(timeTicks({width, 300, span}, Font));
        };
        QCOMPARE(times(800, 10), u"20 0.5@40 10.0@800"_s); // just fits
        QCOMPARE(times(799, 10), u"10 1@79 10@799"_s);
        QCOMPARE(times(800, 1000), u"16 60@50 960@800"_s);
        QCOMPARE(times(800, 25), u"12 2@66 24@800"_s); // no multiple
        QCOMPARE(times(30, 10), QString());
        QCOMPARE(timeTicks({800, 300, 10}, Font).first().labelRect, QRect(21, 302, 40, 16));

        const auto speeds = [](int height, double perSpeed) {
            return summary(speedTicks({800, height, 10}, Font, perSpeed));
        };
        QCOMPARE(speeds(300, 1), u"12 2.5@275 30.0@0"_s);
        QCOMPARE(speeds(480, 1), u"30 1@464 30@0"_s);
        QCOMPARE(speeds(300, 1.0 / 60), u"10 0.05@270 0.50@0"_s);
        QCOMPARE(speeds(300, 0.36), u"10 1@272 10@22"_s); // the top lies between two ticks
        QCOMPARE(speedTicks({800, 300, 10}, Font, 1).first().labelRect, QRect(-40, 267, 37, 16));
    }

    void columnKeepsFirstHighestLowestLast()
    {
        const QList<QPoint> points{{0, 5}, {0, 9}, {0, 7}, {0, 1}, {0, 6}, {1, 4}, {3, 2}, {3, 2}, {3, 2}};
        QCOMPARE(columnExtremes(points), (QList<qsizetype>{0, 1, 3, 4, 5, 6, 8}));
    }

    void traceOfADayCostsWhatThePlotShows()
    {
        const Scale scale{.width = 1000, .height = 200, .spanSeconds = 1000};
        QList<double> speeds;
        for (qint64 i = 0; i < 432'000; ++i)
            speeds.append(static_cast<double>(i * 7919 % 4000) / 100); // beyond the top at times
        const QList<QPoint> line = traceLine(speeds, scale);
        QVERIFY(line.size() <= 4 * (scale.width + 2));
        QVERIFY(line.last().x() > scale.width); // so that the last segment crosses the edge
        for (int x = 0; x < scale.width; ++x) {
            const auto [slowest, fastest] = std::ranges::minmax(speeds.sliced(5 * x, 5)); // of one pixel
            QList<int> drawn;
            for (const QPoint point : line) {
                if (point.x() == x)
                    drawn.append(point.y());
            }
            QCOMPARE(std::ranges::min(drawn), std::max(0, static_cast<int>(200 - fastest * (200.0 / 30))));
            QCOMPARE(std::ranges::max(drawn), std::max(0, static_cast<int>(200 - slowest * (200.0 / 30))));
        }
    }

    void columnsAreFilledToTheMiddleOfTheLine()
    {
        const Scale scale{.width = 6, .height = 30, .spanSeconds = 10};
        // A restless column counts with where it leaves and where the next one is entered.
        const QList<QPoint> line{{1, 20}, {1, 2}, {1, 10}, {3, 14}, {4, 40}};
        QCOMPARE(columnTops(line, scale), (QList<double>{30, 11, 13, 27, 30, 30}));
        QCOMPARE(columnTops({{-10'000'000, -5}, {10'000'000, -5}}, scale), QList<double>(6, 0));
    }

    void barsStandInTheirLanes()
    {
        const Scale scale{.width = 800, .height = 300, .spanSeconds = 10};
        QCOMPARE(laneBottom(scale, Font, 0), 336);
        QCOMPARE(laneBar(scale, Font, 1000, 2510, 2), QRect(80, 357, 120, 18));
    }

    void curveIsLevelToBothEdges()
    {
        using Line = QList<QPoint>;
        const auto line = [](const ScriptPoints &points) {
            return ScriptCurve::of(points, {100, 300, 10}).line;
        };
        QCOMPARE(line({{2, 10}, {4, 20}}), (Line{{0, 200}, {20, 200}, {40, 100}, {100, 100}}));
        QCOMPARE(line({{10, 0}, {0, 30}}), (Line{{0, 0}, {100, 300}}));
        QCOMPARE(line({{0, 0}, {20, 30}}), (Line{{0, 300}, {200, 0}}));
        QCOMPARE(line({{0, 1}, {10, 30}, {0, 10}}), (Line{{0, 200}, {100, 0}})); // of one time the last
        QCOMPARE(line({}), Line());

        ScriptPoints many;
        for (int i = 0; i < 1'000'000; ++i)
            many.append({i * 1e-5, static_cast<double>(i % 30)});
        QVERIFY(ScriptCurve::of(many, {100, 300, 10}).markers.size() <= 4 * 101);
    }

    void firstMarkerInReachIsHit()
    {
        const Scale scale{.width = 100, .height = 300, .spanSeconds = 10};
        const ScriptPoints points{{5, 15}, {1, 10}, {1.2, 10}};
        QCOMPARE(markerAt(points, scale, {10, 200}, 4), 1);
        QCOMPARE(markerAt(points, scale, {16, 204}, 4), 2);
        QCOMPARE(markerAt(points, scale, {54, 146}, 4), 0);
        QCOMPARE(markerAt(points, scale, {55, 150}, 4), -1);
        QCOMPARE(markerAt(points, scale, {50, 155}, 4), -1);
    }

    void placesAreBoundedAndRounded()
    {
        const Scale scale{.width = 100, .height = 300, .spanSeconds = 10};
        QCOMPARE(pointAt(scale, {25, 75}, 10), (ScriptPoint{2.5, 22.5}));
        QCOMPARE(pointAt(scale, {-5, -1}, 10), (ScriptPoint{0, 30}));
        QCOMPARE(pointAt(scale, {120, 310}, 10), (ScriptPoint{10, 0}));
        QCOMPARE(snapped({2.5, 22.5}, Snap::WholeNumbers), (ScriptPoint{3, 23}));
        QCOMPARE(snapped({2.25, 0.04}, Snap::Tenths), (ScriptPoint{2.3, 0}));
    }
};

QTEST_APPLESS_MAIN(TestGraphGeometry)
#include "tst_graphgeometry.moc"
