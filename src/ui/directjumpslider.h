#pragma once

#include <QSlider>

/// A horizontal slider that jumps to the place clicked, and that the wheel doesn't move.
class DirectJumpSlider : public QSlider
{
    Q_OBJECT

public:
    explicit DirectJumpSlider(QWidget *parent);

    /// Ignored, wheel events go on to the parent; otherwise they end here. Off at first.
    void setWheelIgnored(bool ignored) { m_wheelIgnored = ignored; }

signals:
    /// Beside the handle.
    void rightButtonPressed();
    void sliderJump(int pos);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void jump(QMouseEvent *event);
    bool isOnHandle(QPoint position) const;

    bool m_wheelIgnored = false;
};
