#pragma once

#include <QWidget>

/// A widget that is filled when it is first shown: the start of the program does not wait for what most
/// starts show later, if ever.
class LateWidget : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    void setVisible(bool visible) override;

protected:
    /// Called once.
    virtual void layOut() = 0;

private:
    bool m_laidOut = false;
};
