#pragma once

#include "framework/common/widgets/plotgeometry.h"

#include <QColor>
#include <QList>
#include <QMap>
#include <QPen>
#include <QString>
#include <QWidget>

/// A plot of several series of values as lines or bars, with a grid and text along the axes. Points lie at
/// even distances over the width; painting costs what the width asks for, however many there are.
class SimpleGraphic : public QWidget
{
    Q_OBJECT

public:
    enum DrawingStyle {
        Drawing_Lines = 0,
        Drawing_Bars = 1,
        Drawing_SeparateBars = 2,          ///< each point in a colour of its own
        Drawing_SeparateBarsLocalValue = 3 ///< and with its value in percent
    };
    Q_ENUM(DrawingStyle)
    enum TextGridStyle { TextGrid_Numeric = 0, TextGrid_Time = 1, TextGrid_CustomText = 2 };
    Q_ENUM(TextGridStyle)

    explicit SimpleGraphic(const QString &title, QWidget *parent = nullptr);

    /// The series 0. Without \a repaint the points show with the next paint.
    void setPoints(const QList<float> &points, bool repaint = true);
    void setPoints(int series, const QList<float> &points, bool repaint = true);
    void clear();

    /// Of a series, or in the separate-bar styles of a point. A negative number is ignored.
    void setGraphicColor(const QColor &color, int series = 0);
    void setGraphicWidth(int width, int series = 0);
    void clearGraphicColors();

    void setDrawingStyle(DrawingStyle style);
    /// Bars or lines.
    void setDrawAsBars(bool bars);
    void setTextGridStyle(TextGridStyle style);
    /// The text of each point, or of the points that are named.
    void setCustomTextGrid(const QList<QString> &texts);
    void setCustomTextGrid(const QMap<float, QString> &texts);
    void setFixedYRange(float min, float max);
    /// In points and in values; 0 means no grid on that axis.
    void setHorizontalPointTickScale(float scale);
    void setVerticalPointTickScale(float scale);

    void setGridPen(const QPen &pen);
    void setBackgroundColor(const QColor &color);
    void setTextColor(const QColor &color);
    /// In pixels.
    void setTextFontSize(float size);
    void setTextVisible(bool x, bool y);
    void setTextXVisible(bool visible);
    void setTextYVisible(bool visible);
    void setTextXAlignment(Qt::Alignment alignment);
    void setHeaderTextAlignment(Qt::Alignment alignment);
    void setBottomLineVisible(bool visible);
    void setZeroYTextVisible(bool visible);
    /// The value of the point or bar under the mouse.
    void showTooltips(bool show);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    struct Series
    {
        QList<float> points;
        std::optional<PlotGeometry::Range> range;
        QList<PlotGeometry::Sample> samples; ///< what of the points is drawn at the present step
    };

    template <typename Value>
    void change(Value &field, const Value &value);
    bool isSeparate() const;
    PlotGeometry::Scale scale() const;
    void reduce(double xStep);
    void paintGrid(QPainter &painter, const PlotGeometry::Scale &scale) const;
    void paintLines(QPainter &painter, const PlotGeometry::Scale &scale) const;
    void paintBars(QPainter &painter, const PlotGeometry::Scale &scale);
    QColor pointColor(int index);
    void paintTextX(QPainter &painter, const PlotGeometry::Scale &scale) const;
    void paintTextY(QPainter &painter, const PlotGeometry::Scale &scale) const;
    QString tickText(double value) const;
    QString valueText(float value) const;
    void showToolTip(const PlotGeometry::Scale &scale);

    QMap<int, Series> m_series;
    double m_reducedStep = 0; // for which the samples stand
    QMap<int, QColor> m_colors;
    QMap<int, float> m_widths;
    QMap<float, QString> m_customText;
    bool m_tooltips = false;
    bool m_textXVisible = true;
    bool m_textYVisible = true;
    bool m_bottomLineVisible = true;
    bool m_zeroYTextVisible = true;
    QPen m_gridPen{QColor(0xAAAAAA)};
    QColor m_background = Qt::white;
    QColor m_textColor = Qt::black;
    float m_textFontSize = 14;
    Qt::Alignment m_textXAlignment = Qt::AlignLeft;
    Qt::Alignment m_headerAlignment = Qt::AlignRight;
    DrawingStyle m_drawingStyle = Drawing_Lines;
    TextGridStyle m_textGridStyle = TextGrid_Numeric;
    QString m_title;
    std::optional<PlotGeometry::Range> m_fixedRange;
    float m_horizontalTickScale = 0;
    float m_verticalTickScale = 0;
};
