#pragma once

#include <QList>
#include <QWidget>

class BarChart;
class GaugeWidget;
class QGridLayout;
class SimpleGraphic;

/// Plots, gauges and the bar chart in the colours of the theme.
class ChartsPage : public QWidget
{
    Q_OBJECT

public:
    explicit ChartsPage(QWidget *parent = nullptr);

private:
    void addPlots(QGridLayout *grid);
    SimpleGraphic *addPlot(QGridLayout *grid, const QString &title);
    QWidget *createBarChart();
    QWidget *createGauges();
    void applyColors();

    QList<SimpleGraphic *> m_plots;
    QList<GaugeWidget *> m_gauges;
    BarChart *m_barChart = nullptr;
};
