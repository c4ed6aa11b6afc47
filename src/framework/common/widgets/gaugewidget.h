#pragma once

#include <QColor>
#include <QRect>
#include <QWidget>

/// A value as a round ring that fills from the lower left to the lower right, with its number in the middle.
class GaugeWidget : public QWidget
{
    Q_OBJECT

public:
    explicit GaugeWidget(QWidget *parent = nullptr);

    void setRange(float min, float max);
    /// The ring shows the value brought into the range, the number is as given.
    void setValue(float value);
    void setBackgroundColor(const QColor &color);
    void setBarColor(const QColor &color);
    void setRoundColor(const QColor &color);
    void setTextColor(const QColor &color);

    /// The square around the ring.
    static QRect ringSquare(QSize widget);
    /// The filled part in sixteenths of a degree, negative for clockwise; none if the range is none.
    static int barSpan(float value, float min, float max);
    static QString valueText(float value);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    float m_minimum = 0;
    float m_maximum = 100;
    float m_shownValue = 0;
    float m_rawValue = 0;
    QColor m_backgroundColor = Qt::white;
    QColor m_barColor{0x115599};
    QColor m_textColor = Qt::black;
    QColor m_roundColor{0xCCCCCC};
};
