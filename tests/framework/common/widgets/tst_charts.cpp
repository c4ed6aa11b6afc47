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

QString joined(const QList<Sample> &samples)
{
    QStringList texts;
    for (const Sample &sample : samples)
        texts.append(u"%1:%2"_s.arg(sample.index).arg(double(sample.value)));
    return texts.join(u' ');
}

QString joined(const QList<Tick> &ticks)
{
    QStringList texts;
    for (const Tick &tick : ticks)
        texts.append(u"%1=%2"_s.arg(tick.position).arg(tick.value));
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

class Chart : public BarChart
{
public:
    using BarChart::BarChart;
    void showCenterLine() { m_centerLine = true; }
};

} // namespace

class TestCharts : public QObject
{
    Q_OBJECT

private slots:
    void barHeights_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("min");
        QTest::addColumn<double>("max");
        QTest::addColumn<int>("minHeight");
        QTest::addColumn<int>("height");
        QTest::newRow("truncated") << 0.777 << 0.0 << 1.0 << 0 << 77;
        QTest::newRow("above") << 5.0 << 0.0 << 1.0 << 3 << 100;
        QTest::newRow("below") << -5.0 << 0.0 << 1.0 << 3 << 3;
        QTest::newRow("negative range") << -25.0 << -100.0 << -0.0 << 0 << 75;
        QTest::newRow("no number") << qQNaN() << 0.0 << 1.0 << 2 << 2;
        QTest::newRow("infinite") << qInf() << 0.0 << 1.0 << 0 << 100;
        QTest::newRow("no range") << 1.0 << 1.0 << 1.0 << 0 << 0;
        QTest::newRow("crossed") << 1.0 << 2.0 << 0.0 << 0 << 0;
        QTest::newRow("infinite range") << 1.0 << 0.0 << qInf() << 0 << 0;
        QTest::newRow("widest range") << HugeDouble / 2 << -HugeDouble << HugeDouble << 0 << 75;
        QTest::newRow("tiny range") << 1.5e-300 << 1e-300 << 2e-300 << 0 << 50;
    }

    void barHeights()
    {
        QFETCH(double, value);
        QFETCH(double, min);
        QFETCH(double, max);
        QFETCH(int, minHeight);
        // The area is what two rows of 20 leave of 140.
        const BarChartLayout layout({200, 140}, 4, 0.8, 20, 2);
        QTEST(layout.barHeight(value, min, max, minHeight), "height");
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
        chart.setBarWidthRatio(0);
        QCOMPARE(chart.getBarWidthRatio(), 0.001);
        chart.setBarWidthRatio(2);
        QCOMPARE(chart.getBarWidthRatio(), 1.0);
        chart.setBarWidthRatio(qQNaN());
        QCOMPARE(chart.getBarWidthRatio(), 0.001);
        const double values[] = {1, 2, 3};
        chart.setValues(values);
        chart.setValues({7, 8});
        chart.setValues({7, 8, 3, 4, 5});
        chart.setBar(1, u"two"_s, Qt::blue, Qt::Dense4Pattern);
        for (const int index : {-1, 3, 255})
            chart.setBar(index, u"none"_s, Qt::blue, Qt::SolidPattern);
        QCOMPARE(chart.getBarValue(1), 8.0);
        QCOMPARE(chart.getBarValue(2), 3.0);
        QCOMPARE(chart.getBarName(1), u"two"_s);
        QCOMPARE(chart.getBarName(3) + chart.getBarName(-1), QString());
        QCOMPARE(chart.getBarValue(3), 0.0);
        chart.setBarAmount(255);
        QCOMPARE(chart.minimumWidth(), 2550);
        QCOMPARE(chart.getBarValue(1), 0.0);
        QCOMPARE(chart.getBarName(1), QString());
        chart.setBarAmount(0);
        QCOMPARE(count(painted(chart, 60, 60), Qt::red), 0);
    }

    void barChartPaintsWhatItHolds()
    {
        Chart chart(2);
        chart.setShowNames(false);
        chart.setShowValues(false);
        chart.setBackgroundColor(Qt::black);
        chart.setBarColor(1, Qt::blue);
        chart.setValues({0.5, qInf()});
        QImage image = painted(chart, 100, 100);
        QCOMPARE(image.pixelColor(25, 99), QColor(Qt::red));
        QCOMPARE(image.pixelColor(25, 45), QColor(Qt::black));
        QCOMPARE(image.pixelColor(75, 1), QColor(Qt::blue));
        QCOMPARE(image.pixelColor(1, 99), QColor(Qt::black));
        chart.showCenterLine();
        chart.setShowNames(true);
        image = painted(chart, 100, 100);
        const int area = 100 - BarChartLayout::rowHeightOf(chart.font());
        QVERIFY(area < 90);
        QCOMPARE(image.pixelColor(1, area / 2), QColor(Qt::gray));
        QCOMPARE(image.pixelColor(25, area + 3), QColor(Qt::green));
    }

    void gaugeSpans_data()
    {
        QTest::addColumn<float>("value");
        QTest::addColumn<float>("min");
        QTest::addColumn<float>("max");
        QTest::addColumn<int>("span");
        QTest::addColumn<QString>("text");
        QTest::newRow("truncated") << 33.37F << 0.0F << 100.0F << -1441 << u"33%"_s;
        QTest::newRow("above") << 250.9F << 0.0F << 100.0F << -4320 << u"250%"_s;
        QTest::newRow("below") << -0.5F << 0.0F << 100.0F << 0 << u"0%"_s;
        QTest::newRow("negative range") << -30.0F << -40.0F << -20.0F << -2160 << u"-30%"_s;
        QTest::newRow("no number") << NoNumber << 0.0F << 100.0F << 0 << u"nan%"_s;
        QTest::newRow("infinite") << Infinite << 0.0F << 100.0F << -4320 << u"inf%"_s;
        QTest::newRow("no range") << 5.0F << 5.0F << 5.0F << 0 << u"5%"_s;
        QTest::newRow("crossed") << 5.0F << 9.0F << 1.0F << 0 << u"5%"_s;
        QTest::newRow("widest") << 0.0F << -Huge << Huge << -2160 << u"0%"_s;
        QTest::newRow("infinite range") << 0.0F << 0.0F << Infinite << 0 << u"0%"_s;
        QTest::newRow("no number in the range") << 0.0F << NoNumber << 100.0F << 0 << u"0%"_s;
    }

    void gaugeSpans()
    {
        QFETCH(float, value);
        QFETCH(float, min);
        QFETCH(float, max);
        QTEST(GaugeWidget::barSpan(value, min, max), "span");
        QTEST(GaugeWidget::valueText(value), "text");
    }

    void gaugePaintsRingDiscAndText()
    {
        GaugeWidget gauge;
        gauge.setTextColor(Qt::magenta);
        gauge.setValue(50);
        QCOMPARE(GaugeWidget::ringSquare({120, 80}), QRect(21, 1, 78, 78));
        QImage image = painted(gauge, 120, 80);
        QCOMPARE(image.pixelColor(60 - 30, 40), QColor(0x115599));
        QCOMPARE(image.pixelColor(60 + 30, 40), QColor(Qt::white));
        QCOMPARE(image.pixelColor(60, 40 + 16), QColor(0xCCCCCC));
        QCOMPARE(image.pixelColor(60, 40 + 35), QColor(Qt::green));
        // The range comes after the value, which is measured anew.
        gauge.setRange(0, 40);
        image = painted(gauge, 120, 80);
        QCOMPARE(image.pixelColor(60 + 30, 40), QColor(0x115599));
        QVERIFY(count(image, Qt::magenta) > 0);
        QCOMPARE(count(painted(gauge, 120, 69), Qt::magenta), 0);
    }

    void reducesByColumns_data()
    {
        QTest::addColumn<QList<float>>("values");
        QTest::addColumn<double>("xStep");
        QTest::addColumn<QString>("kept");
        QTest::newRow("none") << QList<float>() << 0.25 << QString();
        QTest::newRow("all") << QList<float>{3, NoNumber, 1} << 1.0 << u"0:3 1:nan 2:1"_s;
        QTest::newRow("first, lowest, highest, last")
            << QList<float>{3, 9, 4, 1, 5, 2, 2, 2} << 0.125 << u"0:3 1:9 3:1 7:2"_s;
        QTest::newRow("columns") << QList<float>{1, 2, 3, 2, 4, 4, 4, 4} << 0.25 << u"0:1 2:3 3:2 4:4 7:4"_s;
        QTest::newRow("gap") << QList<float>{1, NoNumber, NoNumber, NoNumber, 5, 6} << 0.5
                             << u"0:1 3:nan 4:5 5:6"_s;
        QTest::newRow("infinite") << QList<float>{0, Infinite, -Infinite, 1} << 0.25
                                  << u"0:0 1:inf 2:-inf 3:1"_s;
    }

    void reducesByColumns()
    {
        QFETCH(QList<float>, values);
        QFETCH(double, xStep);
        QTEST(joined(reduced(values, xStep)), "kept");
    }

    void scales_data()
    {
        QTest::addColumn<Range>("range");
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("y");
        QTest::addColumn<double>("base");
        QTest::newRow("zero within") << Range{-50, 50} << 25.0 << 25.0 << 50.0;
        QTest::newRow("above zero") << Range{100, 200} << 125.0 << 75.0 << 100.0;
        QTest::newRow("below zero") << Range{-200, -100} << -100.0 << 0.0 << 100.0;
        QTest::newRow("one value") << Range{7, 7} << 7.0 << 50.0 << 100.0;
        QTest::newRow("widest") << Range{-Huge, Huge} << 0.0 << 50.0 << 50.0;
        QTest::newRow("tiny") << Range{0, 1e-45} << 1e-45 << 0.0 << 100.0;
        QTest::newRow("too wide") << Range{-HugeDouble, HugeDouble} << 0.0 << 50.0 << 50.0;
    }

    void scales()
    {
        QFETCH(Range, range);
        QFETCH(double, value);
        const Scale scale{400, 100, range, 10};
        QTEST(scale.yAt(value), "y");
        QTEST(scale.baseLevel(), "base");
    }

    void rangeIsOfWhatIsFinite()
    {
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

    void ticks_data()
    {
        QTest::addColumn<Range>("range");
        QTest::addColumn<double>("tickScale");
        QTest::addColumn<QString>("points");
        QTest::addColumn<QString>("values");
        QTest::newRow("none") << Range{0, 10} << 0.0 << QString() << QString();
        QTest::newRow("zero within") << Range{-5, 5} << 4.0 << u"0=0 40=4 80=8"_s << u"50=0 10=4"_s;
        QTest::newRow("from the bottom")
            << Range{10, 20} << 5.0 << u"0=0 50=5 100=10"_s << u"100=10 50=15 0=20"_s;
        QTest::newRow("negative scale") << Range{0, 10} << -1.0 << QString() << QString();
        QTest::newRow("no number") << Range{0, 10} << qQNaN() << QString() << QString();
        QTest::newRow("infinite") << Range{0, 10} << qInf() << QString() << QString();
        QTest::newRow("no range") << Range{3, 3} << 5.0 << u"0=0 50=5 100=10"_s << QString();
    }

    void ticks()
    {
        QFETCH(Range, range);
        QFETCH(double, tickScale);
        const Scale scale{100, 100, range, 10};
        QTEST(joined(pointTicks(scale, tickScale)), "points");
        QTEST(joined(valueTicks(scale, tickScale)), "values");
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

    void plotSurvives_data()
    {
        QTest::addColumn<QList<float>>("points");
        QTest::addColumn<bool>("showsLine");
        QTest::newRow("empty") << QList<float>() << false;
        QTest::newRow("one") << QList<float>{5} << false;
        QTest::newRow("two") << QList<float>{5, -5} << true;
        QTest::newRow("equal") << QList<float>{5, 5} << true;
        QTest::newRow("no numbers") << QList<float>{NoNumber, NoNumber, NoNumber} << false;
        QTest::newRow("infinite") << QList<float>{Infinite, -Infinite, 1, 2} << true;
        QTest::newRow("huge") << QList<float>{-Huge, Huge, 0} << true;
        QTest::newRow("million") << noise(Huge) << true;
    }

    void plotSurvives()
    {
        QFETCH(QList<float>, points);
        QFETCH(bool, showsLine);
        SimpleGraphic plot(u"Title"_s);
        plot.setGridPen(Qt::NoPen);
        plot.setTextColor(Qt::gray);
        plot.setHorizontalPointTickScale(1);
        plot.setVerticalPointTickScale(1e-3F);
        plot.setGraphicColor(Qt::red, 3);
        plot.setGraphicColor(Qt::blue, -1);
        plot.setGraphicWidth(4, 3);
        plot.setPoints(3, points);
        for (const QSize size : {QSize(9, 200), QSize(200, 9)})
            QCOMPARE(count(painted(plot, size.width(), size.height()), Qt::red), 0);
        QCOMPARE(count(painted(plot, 300, 200), Qt::red) > 0, showsLine);
        for (const auto style :
             {SimpleGraphic::Drawing_SeparateBars, SimpleGraphic::Drawing_SeparateBarsLocalValue}) {
            plot.setDrawingStyle(style);
            // The colours of points are drawn once and kept.
            QCOMPARE(painted(plot, 300, 200), painted(plot, 300, 200));
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
        QCOMPARE(image.pixelColor(125, 1), QColor(0x115599));
        QCOMPARE(image.pixelColor(25, 99), QColor(Qt::blue));
        plot.setFixedYRange(200, -200);
        plot.setFixedYRange(NoNumber, 5);
        QCOMPARE(painted(plot, 200, 100).pixelColor(125, 20), QColor(Qt::white));
        // Room for the text below is taken from the plot.
        plot.setTextColor(Qt::magenta);
        plot.setHorizontalPointTickScale(1);
        plot.setTextXVisible(true);
        plot.setTextGridStyle(SimpleGraphic::TextGrid_CustomText);
        plot.setFixedYRange(0, 100);
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
