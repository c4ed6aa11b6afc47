#include "framework/common/widgets/nellipse.h"

#include <QPainter>

NEllipse::NEllipse(const QBrush &brush, const QColor &penColor, float penWidth, int width, int height,
                   QWidget *parent)
    : QWidget(parent)
    , m_brush(brush)
    , m_penColor(penColor)
    , m_penWidth(penWidth)
{
    if (width > 0) {
        setMinimumWidth(width);
        setMaximumHeight(width);
    }
    if (height > 0) {
        setMinimumHeight(height);
        setMaximumHeight(height);
    }
}

void NEllipse::paintEvent(QPaintEvent *)
{
    if (width() <= 0 && height() <= 0)
        return;
    const QPointF center(static_cast<float>(width()) * 0.5F, static_cast<float>(height()) * 0.5F);
    QPointF radii = center;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(m_brush);
    if (m_penWidth > 0) {
        painter.setPen(QPen(QBrush(m_penColor), m_penWidth, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        radii -= QPointF(m_penWidth, m_penWidth);
    } else {
        painter.setPen(Qt::NoPen);
    }
    painter.drawEllipse(center, qMax(radii.x(), 0.0), qMax(radii.y(), 0.0));
}
