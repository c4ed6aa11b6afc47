#include "framework/common/widgets/barchart.h"
#include "framework/common/widgets/barchartlayout.h"
#include "framework/common/widgets/gaugewidget.h"
#include "framework/common/widgets/simplegraphic.h"

#include <QTest>
#include <QToolTip>

#include <limits>

using namespace PlotGeometry;
using namespace Qt::StringLiterals;

namespace {

constexpr float NoNumber = std::numeric_limits<float>::quiet_NaN();
constexpr float Infinite = std::numeric_limits<float>::infinity();
constexpr float Huge = std::numeric_limits<float>::max();
constexpr double HugeDouble = std::numeric_limits<double>::max();

QString text(const Sample &sample)
{
    return u"%1:%2"_s.arg(sample.index).arg(double(sample.value));
}

QString text(const Tick &tick)
{
    return u"%1=%2"_s.arg(tick.position).arg(tick.value);
}

template <typename Item>
QString joined(const QList<Item> &items)
{
    QStringList texts;
    for (const Item &item : items)
        texts.append(text(item));
    return texts.join(u' ');
}

/// 1e6 values that jump over the whole range in each pixel column.
QList<float> noise(float height)
{
    QList<float> values(1'000'000);
    for (qsizetype i = 0; i < values.size(); ++i)
        values[i] = height * static_cast<float>((i * 7919) % 1000 - 500) / 500;
    return values;
}

template <typename Widget>
QImage painted(Widget &widget, int width, int height)
{
    widget.resize(width, height);
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::green);
    widget.render(&image, {}, {}, {});
    return image;
}

int count(const QImage &image, QColor color)
{
    int found = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            found += image.pixelColor(x, y) == color ? 1 : 0;
    }
    return found;
}

} // namespace

class TestCharts : public QObject
{
    Q_OBJECT

private slots:
    void barHeights()
    {
        // The area is what two rows of 20 leave of 140.
        const BarChartLayout layout({200, 140}, 4, 0.8, 20, 2);
        QCOMPARE(layout.barHeight(0.777, 0, 1, 0), 77);
        QCOMPARE(layout.barHeight(5, 0, 1, 3), 100);
        QCOMPARE(layout.barHeight(-5, 0, 1, 3), 3);
        QCOMPARE(layout.barHeight(qQNaN(), 0, 1, 2), 2);
        QCOMPARE(layout.barHeight(qInf(), 0, 1, 0), 100);
        QCOMPARE(layout.barHeight(1, 1, 1, 0), 0); // no range
        QCOMPARE(layout.barHeight(1, 2, 0, 0), 0); // crossed
        QCOMPARE(layout.barHeight(1, 0, qInf(), 0), 0);
        QCOMPARE(layout.barHeight(HugeDouble / 2, -HugeDouble, HugeDouble, 0), 75);
    }

    void barsShareTheWidth()
    {
        const BarChartLayout layout({203, 140}, 4, 0.77, 20, 1);
        QCOMPARE(layout.area, QRect(0, 0, 203, 120));
        QCOMPARE(layout.bar(2, 30), QRect(106, 90, 38, 30));
        QCOMPARE(layout.valueRow(1), QRect(50, 121, 50, 20));
        // Placed as if the values were shown.
        QCOMPARE(layout.nameRow(3), QRect(150, 141, 45, 20));
        QVERIFY(layout.nameFits(46) && !layout.nameFits(47));
        const BarChartLayout narrow({40, 30}, 255, 0.001, 20, 2);
        QCOMPARE(narrow.bar(254, 5), QRect(254, -5, 1, 5));
        QCOMPARE(BarChartLayout({100, 50}, 0, 0.8, 20, 0).slot, 100);
    }

    void barChartKeepsToItsBars()
    {
        BarChart chart(3);
        QCOMPARE(chart.minimumSize(), QSize(30, 50));
        const QList<std::pair<double, double>> ratios{{0, 0.001}, {2, 1}, {qQNaN(), 0.001}};
        for (const auto &[wanted, taken] : ratios) {
            chart.setBarWidthRatio(wanted);
            QCOMPARE(chart.getBarWidthRatio(), taken);
        }
        const double values[] = {1, 2, 3};
        chart.setValues(values);
        chart.setValues({7, 8});
        QCOMPARE(chart.getBarValue(2), 3.0);
        chart.setValues({7, 8, 3, 4, 5});
        for (const int index : {-1, 1, 3, 255})
            chart.setBar(index, u"two"_s, Qt::blue, Qt::Dense4Pattern);
        QCOMPARE(chart.getBarValue(1), 8.0);
        QCOMPARE(chart.getBarName(1), u"two"_s);
        QCOMPARE(chart.getBarName(3) + chart.getBarName(-1), QString());
        QCOMPARE(chart.getBarValue(3), 0.0);
        chart.setShowNames(false);
        chart.setShowValues(false);
        chart.setBackgroundColor(Qt::black);
        chart.setBarColor(1, Qt::blue);
        chart.setValues({0.5, qInf()});
        const QImage image = painted(chart, 90, 100);
        QCOMPARE(image.pixelColor(15, 99), QColor(Qt::red));
        QCOMPARE(image.pixelColor(15, 45), QColor(Qt::black));
        QCOMPARE(image.pixelColor(45, 1), QColor(Qt::blue));
        chart.setBarAmount(255);
        QCOMPARE(chart.minimumWidth(), 2550);
        QCOMPARE(chart.getBarValue(1), 0.0);
        chart.setBarAmount(0);
        QCOMPARE(count(painted(chart, 60, 60), Qt::red), 0);
    }

    void gaugeSpansTextsAndPainting()
    {
        QCOMPARE(GaugeWidget::barSpan(33.37F, 0, 100), -1441); // truncated
        QCOMPARE(GaugeWidget::barSpan(250.9F, 0, 100), -4320);
        QCOMPARE(GaugeWidget::barSpan(-0.5F, 0, 100), 0);
        QCOMPARE(GaugeWidget::barSpan(-30, -40, -20), -2160);
        QCOMPARE(GaugeWidget::barSpan(NoNumber, 0, 100), 0);
        QCOMPARE(GaugeWidget::barSpan(5, 9, 1), 0);
        QCOMPARE(GaugeWidget::barSpan(0, -Huge, Huge), -2160);
        QCOMPARE(GaugeWidget::barSpan(0, 0, Infinite), 0);
        QCOMPARE(GaugeWidget::barSpan(0, NoNumber, 100), 0);
        QCOMPARE(GaugeWidget::valueText(250.9F), u"250%"_s);
        QCOMPARE(GaugeWidget::valueText(-0.5F), u"0%"_s);
        QCOMPARE(GaugeWidget::valueText(NoNumber), u"nan%"_s);

        GaugeWidget gauge;
        gauge.setTextColor(Qt::magenta);
        gauge.setValue(50);
        gauge.setRange(0, 40); // after the value, which is measured anew
        const QImage image = painted(gauge, 120, 80);
        QCOMPARE(image.pixelColor(60 + 30, 40), QColor(0x115599));
        QCOMPARE(image.pixelColor(60, 40 + 16), QColor(0xCCCCCC));
        QVERIFY(count(image, Qt::magenta) > 0);
        QCOMPARE(count(painted(gauge, 120, 69), Qt::magenta), 0);
    }

    void reducesByColumns()
    {
        const auto kept = [](const QList<float> &values, double xStep) {
            return joined(reduced(values, xStep));
        };
        QCOMPARE(kept({}, 0.25), QString());
        QCOMPARE(kept({3, NoNumber, 1}, 1), u"0:3 1:nan 2:1"_s);
        // The first, the lowest, the highest and the last of a column.
        QCOMPARE(kept({3, 9, 4, 1, 5, 2, 2, 2}, 0.125), u"0:3 1:9 3:1 7:2"_s);
        QCOMPARE(kept({1, 2, 3, 2, 4, 4, 4, 4}, 0.25), u"0:1 2:3 3:2 4:4 7:4"_s);
        QCOMPARE(kept({1, NoNumber, NoNumber, NoNumber, 5, 6}, 0.5), u"0:1 3:nan 4:5 5:6"_s);
        QCOMPARE(kept({0, Infinite, -Infinite, 1}, 0.25), u"0:0 1:inf 2:-inf 3:1"_s);
    }

    void scales()
    {
        const auto yAt = [](Range range, double value) { return Scale{400, 100, range, 10}.yAt(value); };
        const auto baseLevel = [](Range range) { return Scale{400, 100, range, 10}.baseLevel(); };
        QCOMPARE(yAt({-50, 50}, 25), 25.0);
        QCOMPARE(baseLevel({-50, 50}), 50.0);
        QCOMPARE(baseLevel({100, 200}), 100.0);
        QCOMPARE(yAt({-200, -100}, -100), 0.0);
        QCOMPARE(yAt({7, 7}, 7), 50.0);
        QCOMPARE(baseLevel({7, 7}), 100.0);
        QCOMPARE(yAt({0, 1e-45}, 1e-45), 0.0);
        QCOMPARE(yAt({-HugeDouble, HugeDouble}, 0), 50.0);

        const auto range = rangeOf({NoNumber, 3, -Infinite, -2, Infinite});
        QVERIFY(range && range->min == -2 && range->max == 3);
        QVERIFY(!rangeOf({NoNumber, Infinite}) && !rangeOf({}));
    }

    void linesAndBars()
    {
        const Scale scale{100, 50, {0, 100}, 5};
        const QList<QPolygonF> two =
            lines({{0, 0}, {1, 200}, {2, NoNumber}, {3, -Infinite}, {4, 50}}, scale, 60);
        QCOMPARE(two,
                 QList<QPolygonF>({QList<QPointF>{{0, 50}, {20, 0}}, QList<QPointF>{{60, 60}, {80, 25}}}));
        QVERIFY(lines({{0, 5}}, scale, 60).isEmpty());
        QVERIFY(lines({{0, 5}, {1, NoNumber}, {2, 5}}, scale, 60).isEmpty());
        const QList<QPolygonF> pieces = lines(reduced(QList<float>(41, 7), 1), scale, 60);
        QCOMPARE(pieces.size(), 2);
        QCOMPARE(pieces[0].last(), pieces[1].first());
        QCOMPARE(pieces[1].last().x(), 40 * scale.xStep());
        QCOMPARE(bar({1, 40}, scale), QRectF(21, 30, 18, 20));
        QCOMPARE(bar({1, Infinite}, scale), QRectF(21, 0, 18, 50));
        QVERIFY(bar({1, NoNumber}, scale).isEmpty());
        QCOMPARE(bar({3, -5}, {12, 50, {-10, 10}, 3}), QRectF(12, 25, 4, 12.5));
        QCOMPARE(bar({0, 5}, {10, 50, {5, 5}, 40}), QRectF(0, 25, 1, 25));
    }

    void millionPointsCostTheWidth()
    {
        const QList<float> values = noise(1);
        const Scale scale{1200, 200, {-1, 1}, values.size()};
        const QList<Sample> samples = reduced(values, scale.xStep());
        QVERIFY(samples.size() > 2400 && samples.size() <= 4800);
        const QList<QRectF> columns = strokes(samples, scale, 220, 2);
        QCOMPARE(columns.size(), 1200);
        for (qsizetype x = 0; x < columns.size(); ++x) {
            QCOMPARE(columns[x].left(), double(x));
            QVERIFY(columns[x].top() < 10 && columns[x].bottom() > 190);
        }
        // Flat but for one jump, which joins two columns.
        const Scale flat{2, 100, {0, 100}, 4};
        QCOMPARE(strokes(reduced({10, 10, 90, 90}, 0.5), flat, 100, 2),
                 QList<QRectF>({QRectF(0, 89, 1, 2), QRectF(1, 9, 1, 82)}));
    }

    void ticks()
    {
        const auto points = [](Range range, double tickScale) {
            return joined(pointTicks({100, 100, range, 10}, tickScale));
        };
        const auto values = [](Range range, double tickScale) {
            return joined(valueTicks({100, 100, range, 10}, tickScale));
        };
        QCOMPARE(points({-5, 5}, 4), u"0=0 40=4 80=8"_s);
        QCOMPARE(values({-5, 5}, 4), u"50=0 10=4"_s);
        QCOMPARE(values({10, 20}, 5), u"100=10 50=15 0=20"_s);
        QCOMPARE(points({3, 3}, 5), u"0=0 50=5 100=10"_s);
        QCOMPARE(values({3, 3}, 5), QString());
        for (const double none : {0.0, -1.0, qQNaN(), qInf()})
            QCOMPARE(points({0, 10}, none) + values({0, 10}, none), QString());
    }

    void ticksAreThinnedOut()
    {
        const Scale scale{100, 100, {0, 10}, 10};
        for (const double fine : {0.03, 1e-9, 1e-300}) {
            QVERIFY(pointTicks(scale, fine).size() <= 51 && pointTicks(scale, fine).size() > 30);
            QVERIFY(valueTicks(scale, fine).size() <= 51);
        }
        QCOMPARE(fittingLabels({{-1, 5}, {0, 8}, {9, 5}, {10, 10}, {30, 10}, {92, 9}}, 100),
                 QList<qsizetype>({1, 3, 4}));
    }

    void hits()
    {
        const Scale scale{100, 100, {0, 100}, 10};
        const QList<Sample> samples{{0, 20}, {1, 90}, {2, NoNumber}, {3, Infinite}};
        const auto at = [&](double x, double y, bool bars) {
            const auto hit = sampleAt(samples, scale, {x, y}, bars);
            return hit ? hit->index : -1;
        };
        QCOMPARE(at(12, 12, false), 1);
        QCOMPARE(at(15, 10, false), -1);
        QCOMPARE(at(30, 2, false), 3);
        QCOMPARE(at(20, 50, false), -1);
        QCOMPARE(at(15, 50, true), 1);
        QCOMPARE(at(5, 50, true), -1);
        QCOMPARE(at(25, 50, true), -1);
    }

    void plotSurvives()
    {
        SimpleGraphic plot(u"Title"_s);
        plot.setGridPen(Qt::NoPen);
        plot.setTextColor(Qt::gray);
        plot.setHorizontalPointTickScale(1);
        plot.setVerticalPointTickScale(1e-3F);
        plot.setGraphicColor(Qt::red, 3);
        plot.setGraphicColor(Qt::blue, -1);
        plot.setGraphicWidth(4, 3);
        const QList<float> infinite{Infinite, -Infinite, 1, 2};
        for (const QList<float> &points : {QList<float>(), {5}, {5, 5}, infinite, noise(Huge)}) {
            plot.setPoints(3, points);
            plot.setDrawingStyle({});
            QCOMPARE(count(painted(plot, 9, 200), Qt::red) + count(painted(plot, 200, 9), Qt::red), 0);
            QCOMPARE(count(painted(plot, 300, 200), Qt::red) > 0, points.size() >= 2);
            for (const auto style :
                 {SimpleGraphic::Drawing_SeparateBars, SimpleGraphic::Drawing_SeparateBarsLocalValue}) {
                plot.setDrawingStyle(style);
                // The colours of points are drawn once and kept.
                QCOMPARE(painted(plot, 300, 200), painted(plot, 300, 200));
            }
        }
        plot.clear();
        QCOMPARE(count(painted(plot, 300, 200), Qt::white), 300 * 200);
    }

    void plotPaintsBarsLinesAndText()
    {
        SimpleGraphic plot({});
        plot.setGridPen(QPen(Qt::blue));
        plot.setTextVisible(false, false);
        plot.setPoints({0, 50, 100, 25});
        plot.setDrawAsBars(true);
        QImage image = painted(plot, 200, 100);
        QCOMPARE(image.pixelColor(75, 60), QColor(0x115599));
        QCOMPARE(image.pixelColor(75, 40), QColor(Qt::white));
        QCOMPARE(image.pixelColor(25, 99), QColor(Qt::blue));
        plot.setFixedYRange(200, -200);
        plot.setFixedYRange(NoNumber, 5);
        QCOMPARE(painted(plot, 200, 100).pixelColor(125, 20), QColor(Qt::white));
        // Room for the text below is taken from the plot.
        plot.setTextColor(Qt::magenta);
        plot.setHorizontalPointTickScale(1);
        plot.setTextXVisible(true);
        plot.setTextGridStyle(SimpleGraphic::TextGrid_CustomText);
        QCOMPARE(count(painted(plot, 200, 100), Qt::magenta), 0);
        plot.setCustomTextGrid({u"██"_s, u"██"_s});
        image = painted(plot, 200, 100);
        QVERIFY(count(image, Qt::magenta) > 0);
        QCOMPARE(count(image.copy(0, 0, 200, 70), Qt::magenta), 0);
        plot.setTextGridStyle(SimpleGraphic::TextGrid_Time);
        QVERIFY(painted(plot, 200, 100) != image);
    }

    void plotTellsTheValueUnderTheMouse()
    {
        SimpleGraphic plot(u"Title"_s);
        plot.setTextVisible(false, false);
        plot.setPoints({1.25F, 0.75F});
        plot.setFixedYRange(0, 2);
        plot.setDrawAsBars(true);
        plot.showTooltips(true);
        plot.resize(100, 100);
        plot.show();
        QVERIFY(QTest::qWaitForWindowExposed(&plot));
        QTest::mouseMove(&plot, {60, 90});
        QTRY_COMPARE(QToolTip::text(), u"0.75"_s);
        plot.setDrawingStyle(SimpleGraphic::Drawing_SeparateBarsLocalValue);
        QTRY_COMPARE(QToolTip::text(), u"1%"_s);
        QTest::mouseMove(&plot, {75, 10});
        QTRY_VERIFY(!QToolTip::isVisible());
    }
};

QTEST_MAIN(TestCharts)
#include "tst_charts.moc"
