#pragma once

#include "device/curlyspinbar.h"

#include <QWidget>

class DirectJumpSlider;
class IconWidget;
class QDoubleSpinBox;
class QLayout;
class QPushButton;
class QTabWidget;
class SpeedScriptSelectAndRunWidget;
class SpinbarModel;
class SpinbarSettings;

/// The drum's speed: by hand with a slider in thousandths of a motor revolution per second and a spin box in
/// the operator's unit, or by a script on a second tab. Changing the tab stops the drum.
class SpeedControl : public QWidget
{
    Q_OBJECT

public:
    /// \a model is not owned.
    explicit SpeedControl(SpinbarModel &model, QWidget *parent = nullptr);

    /// Shows the slider's value and commands it.
    void apply();
    void turnOff();
    void setSliderEnabled(bool enabled);
    /// Takes the unit from the settings.
    void updateDimension();

    QSize sizeHint() const override;

private:
    void createManualWidgets();
    void createRunner(SpinbarModel &model);
    QWidget *addPage(const QString &title);
    QLayout *createTitleRow();
    void connectWidgets();
    void passDimensionToScript();
    double shownSpeed() const;

    CurlySpinbar *m_device = nullptr;
    SpinbarSettings *m_settings = nullptr;
    CurlySpinbar::OutputSpeedDimension m_dimension = CurlySpinbar::CentimetersPerSecond;
    IconWidget *m_standingIcon = nullptr;
    IconWidget *m_rotationIcon = nullptr;
    QPushButton *m_offButton = nullptr;
    DirectJumpSlider *m_slider = nullptr;
    QDoubleSpinBox *m_spinBox = nullptr;
    QTabWidget *m_tabs = nullptr;
    SpeedScriptSelectAndRunWidget *m_runner = nullptr;
};
