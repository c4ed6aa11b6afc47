#include "ui/directjumpslider.h"

#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionSlider>

DirectJumpSlider::DirectJumpSlider(QWidget *parent)
    : QSlider(Qt::Horizontal, parent)
{}

void DirectJumpSlider::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        jump(event);
    } else if (event->button() == Qt::RightButton && !isOnHandle(event->position().toPoint())) {
        QSlider::mousePressEvent(event);
        emit rightButtonPressed();
    }
}

void DirectJumpSlider::jump(QMouseEvent *event)
{
    const double way = double(maximum() - minimum()) * event->position().x() / double(width());
    const double place = invertedAppearance() ? maximum() - way : minimum() + way;
    QSlider::mousePressEvent(event);
    setValue(int(place));
    emit sliderJump(int(place));
    emit sliderReleased();
}

bool DirectJumpSlider::isOnHandle(QPoint position) const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    return style()->hitTestComplexControl(QStyle::CC_Slider, &option, position, this)
           == QStyle::SC_SliderHandle;
}

void DirectJumpSlider::wheelEvent(QWheelEvent *event)
{
    if (m_wheelIgnored)
        event->ignore();
}
