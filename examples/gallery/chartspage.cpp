#include "gallery/chartspage.h"

#include "framework/common/widgets/barchart.h"
#include "framework/common/widgets/cursorhelper.h"
#include "framework/common/widgets/gaugewidget.h"
#include "framework/common/widgets/simplegraphic.h"
#include "framework/common/widgets/stylehelper.h"

#include <QGridLayout>
#include <QSlider>

#include <cmath>
#include <numbers>

using namespace Qt::StringLiterals;

namespace {

constexpr int Columns = 3;
constexpr int ManyPoints = 1'000'000;
constexpr float Percent = 100;

QList<float> wave(int count, double turns, double height)
{
    QList<float> values;
    values.reserve(count);
    for (int i = 0; i < count; ++i)
        values.append(static_cast<float>(height * std::sin(2 * std::numbers::pi * turns * i / count)));
    return values;
}

QList<float> withNoise(QList<float> values)
{
    quint32 state = 1;
    for (float &value : values) {
        state = state * 1664525U + 1013904223U;
        value += 0.3F * static_cast<float>(state >> 8) / static_cast<float>(1 << 24);
    }
    return values;
}

} // namespace

ChartsPage::ChartsPage(QWidget *parent)
    : QWidget(parent)
{
    auto *grid = new QGridLayout(this);
    grid->setSpacing(16);
    addPlots(grid);
    grid->addWidget(createBarChart(), 1, 2);
    grid->addWidget(createGauges(), 2, 0, 1, Columns);
    for (const int plots : {0, 1})
        grid->setRowStretch(plots, 1);
    connect(StyleHelper::Instance(), &StyleHelper::Styler::changed, this, &ChartsPage::applyColors);
    applyColors();
}

SimpleGraphic *ChartsPage::addPlot(QGridLayout *grid, const QString &title)
{
    auto *plot = new SimpleGraphic(title);
    plot->setAccessibleName(title);
    plot->setGraphicColor(QColor(0x22, 0x88, 0xCC), 0);
    plot->showTooltips(true);
    grid->addWidget(plot, int(m_plots.size()) / Columns, int(m_plots.size()) % Columns);
    m_plots.append(plot);
    return plot;
}

void ChartsPage::addPlots(QGridLayout *grid)
{
    SimpleGraphic *lines = addPlot(grid, tr("Lines"));
    lines->setPoints(0, wave(60, 2, 1));
    lines->setPoints(1, wave(60, 3, 0.5));
    lines->setGraphicColor(QColor(0x33, 0xCC, 0x00), 1);
    lines->setGraphicWidth(3, 1);
    lines->setFixedYRange(-1.25F, 1.25F);
    lines->setHorizontalPointTickScale(10);
    lines->setVerticalPointTickScale(0.5F);

    SimpleGraphic *bars = addPlot(grid, tr("Bars over time"));
    bars->setDrawAsBars(true);
    bars->setPoints({12, 30, 45, 28, 17, 50, 61, 40, 22, 9, 4, 33});
    bars->setFixedYRange(0, 75);
    bars->setTextGridStyle(SimpleGraphic::TextGrid_Time);
    bars->setHorizontalPointTickScale(2);
    bars->setVerticalPointTickScale(25);

    SimpleGraphic *many = addPlot(grid, tr("A million points"));
    many->setPoints(withNoise(wave(ManyPoints, 3, 1)));
    many->setFixedYRange(-1.75F, 1.75F);
    many->setHorizontalPointTickScale(ManyPoints / 4.0F);
    many->setVerticalPointTickScale(0.5F);

    SimpleGraphic *separate = addPlot(grid, tr("Bars of their own colours"));
    separate->setDrawingStyle(SimpleGraphic::Drawing_SeparateBars);
    separate->setPoints({5, -3, 8, 2, -6});
    separate->setFixedYRange(-8, 12);
    separate->setTextGridStyle(SimpleGraphic::TextGrid_CustomText);
    separate->setCustomTextGrid(QList<QString>{tr("Mon"), tr("Tue"), tr("Wed"), tr("Thu"), tr("Fri")});
    separate->setHorizontalPointTickScale(1);
    separate->setVerticalPointTickScale(4);

    SimpleGraphic *shares = addPlot(grid, tr("Shares"));
    shares->setDrawingStyle(SimpleGraphic::Drawing_SeparateBarsLocalValue);
    shares->setPoints({45, 25, 20, 10});
    shares->setFixedYRange(0, 60);
    shares->setHeaderTextAlignment(Qt::AlignHCenter);
    shares->setTextVisible(false, false);
    const QList<QRgb> colors{0x33AA33, 0x2288CC, 0xCC8822, 0xAA4499, 0xBB4444};
    for (int i = 0; i < colors.size(); ++i) {
        separate->setGraphicColor(QColor(colors.at(i)), i);
        shares->setGraphicColor(QColor(colors.at(i)), i);
    }
}

QWidget *ChartsPage::createBarChart()
{
    m_barChart = new BarChart(5);
    m_barChart->setAccessibleName(tr("Bar chart"));
    m_barChart->setMinMax(0, 60);
    m_barChart->setPrecision(1);
    m_barChart->setBar(0, tr("Rat"), QColor(0x22, 0x88, 0xCC), Qt::SolidPattern);
    m_barChart->setBar(1, tr("Mouse"), QColor(0x33, 0xAA, 0x33), Qt::SolidPattern);
    m_barChart->setBar(2, tr("Gerbil"), QColor(0xCC, 0x88, 0x22), Qt::BDiagPattern);
    m_barChart->setBar(3, tr("A name too long for its bar"), QColor(0xAA, 0x44, 0x99), Qt::Dense4Pattern);
    m_barChart->setBar(4, tr("None"), QColor(0xBB, 0x44, 0x44), Qt::SolidPattern);
    m_barChart->setMinBarHeight(2);
    m_barChart->setValues({42.5, 31.25, 75, 18, 0});
    return m_barChart;
}

QWidget *ChartsPage::createGauges()
{
    auto *box = new QWidget;
    auto *layout = new QHBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    for (const auto &[value, side] : {std::pair{64.0F, 120}, {130.0F, 120}, {30.0F, 60}}) {
        auto *gauge = new GaugeWidget;
        gauge->setAccessibleName(tr("Gauge"));
        gauge->setFixedSize(side, side);
        gauge->setValue(value);
        m_gauges.append(gauge);
        layout->addWidget(gauge);
    }
    auto *slider = new QSlider(Qt::Horizontal);
    slider->setAccessibleName(tr("Value of the first gauge"));
    slider->setRange(0, int(Percent));
    slider->setValue(64);
    CursorHelper::setCursor(slider, Qt::PointingHandCursor);
    connect(slider, &QSlider::valueChanged, m_gauges.first(),
            [gauge = m_gauges.first()](int value) { gauge->setValue(float(value)); });
    layout->addWidget(slider, 1);
    return box;
}

void ChartsPage::applyColors()
{
    const QColor text = StyleHelper::ThemeColor(u"--n-text"_s, Qt::black);
    const QColor background = StyleHelper::ThemeColor(u"--n-field-bg"_s, Qt::white);
    for (SimpleGraphic *plot : std::as_const(m_plots)) {
        plot->setBackgroundColor(background);
        plot->setTextColor(text);
        plot->setGridPen(StyleHelper::ThemeColor(u"--n-active-border"_s, Qt::gray));
    }
    for (GaugeWidget *gauge : std::as_const(m_gauges)) {
        gauge->setBackgroundColor(StyleHelper::ThemeColor(u"--n-panel-bg"_s, Qt::lightGray));
        gauge->setBarColor(StyleHelper::ThemeColor(u"--n-accent"_s, Qt::blue));
        gauge->setRoundColor(background);
        gauge->setTextColor(text);
    }
    m_barChart->setBackgroundColor(background);
    m_barChart->setTextColor(text);
}
