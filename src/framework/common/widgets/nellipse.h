#pragma once

#include <QBrush>
#include <QColor>
#include <QWidget>

/// An ellipse as large as the widget.
class NEllipse : public QWidget
{
    Q_OBJECT

public:
    /// A \a width or \a height above 0 is the least size in that direction; the greatest height is \a height,
    /// else \a width. The width has no upper limit. All in pixels.
    NEllipse(const QBrush &brush, const QColor &penColor, float penWidth, int width, int height,
             QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QBrush m_brush;
    QColor m_penColor;
    float m_penWidth = 0;
};
