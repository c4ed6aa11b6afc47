#pragma once

#include <QWidget>

class CurlySpinbar;
class DirectJumpSlider;
class IconWidget;
class QDoubleSpinBox;
class QPushButton;

/// The current of the electric grid: a slider in thousandths of a mA, and a spin box whose tenths the slider
/// settles on.
class GridControl : public QWidget
{
    Q_OBJECT

public:
    /// \a device is not owned.
    explicit GridControl(CurlySpinbar *device, QWidget *parent = nullptr);

    /// Shows the slider's value and commands it.
    void apply();
    void turnOff();
    void setSliderEnabled(bool enabled);

private:
    void createWidgets();
    void connectWidgets();

    CurlySpinbar *m_device = nullptr;
    IconWidget *m_offIcon = nullptr;
    IconWidget *m_onIcon = nullptr;
    QPushButton *m_offButton = nullptr;
    DirectJumpSlider *m_slider = nullptr;
    QDoubleSpinBox *m_spinBox = nullptr;
};
