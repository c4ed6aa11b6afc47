#pragma once

#include <QColor>
#include <QList>
#include <QString>
#include <QWidget>

/// A fixed number of vertical bars against a fixed range of values, with their values and names below. An
/// index out of range is ignored. Setters of what is shown in a bar don't repaint, except for the values.
class BarChart : public QWidget
{
    Q_OBJECT

public:
    explicit BarChart(unsigned char bars, QWidget *parent = nullptr);

    bool getAutoHeight() const { return m_autoHeight; }
    QColor getBackgroundColor() const { return m_backgroundColor; }
    unsigned char getBarAmount() const { return static_cast<unsigned char>(m_bars.size()); }
    QString getBarName(int index) const;
    double getBarValue(int index) const;
    double getBarWidthRatio() const { return m_barWidthRatio; }
    double getMax() const { return m_max; }
    double getMin() const { return m_min; }
    unsigned char getPrecision() const { return m_precision; }
    bool getShowNames() const { return m_showNames; }
    bool getShowValues() const { return m_showValues; }
    QColor getTextColor() const { return m_textColor; }

    /// Is kept and has no effect on the painting.
    void setAutoHeight(bool autoHeight);
    void setBackgroundColor(const QColor &color);
    void setBar(int index, const QString &name, const QColor &color, Qt::BrushStyle style);
    /// All bars are as new afterwards.
    void setBarAmount(unsigned char bars);
    void setBarColor(int index, const QColor &color);
    void setBarColorToAll(const QColor &color);
    void setBarName(int index, const QString &name);
    void setBarStyle(int index, Qt::BrushStyle style);
    /// Of a bar's slot, 0.001 to 1.
    void setBarWidthRatio(double ratio);
    void setMax(double max);
    void setMin(double min);
    /// In pixels.
    void setMinBarHeight(unsigned short height);
    void setMinMax(double min, double max);
    /// Decimals of the values.
    void setPrecision(unsigned char precision);
    void setShowNames(bool show);
    void setShowValues(bool show);
    void setTextColor(const QColor &color);
    /// As many as there are bars.
    void setValues(const double *values);
    /// The bars behind a short list keep their values.
    void setValues(const QList<double> &values);

protected:
    void paintEvent(QPaintEvent *event) override;

    /// A grey line across the middle of the bars.
    bool m_centerLine = false;

private:
    struct Bar
    {
        QColor color = Qt::red;
        QString name;
        Qt::BrushStyle style = Qt::SolidPattern;
        double value = 0;
    };

    bool goodIndex(int index) const;

    QList<Bar> m_bars;
    bool m_showNames = true;
    bool m_showValues = true;
    double m_barWidthRatio = 0.8;
    double m_min = 0;
    double m_max = 1;
    bool m_autoHeight = false;
    unsigned char m_precision = 2;
    unsigned short m_minBarHeight = 0;
    QColor m_backgroundColor = Qt::transparent;
    QColor m_textColor = Qt::black;
};
