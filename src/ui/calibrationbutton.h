#pragma once

#include <QPushButton>

class CurlySpinbar;
class SpinbarSettings;

/// Starts the wizard that finds the lanes' thresholds, and by its context menu the dialog for typing them. An
/// icon warns that the drum in use has no calibration.
class CalibrationButton : public QPushButton
{
    Q_OBJECT

public:
    /// Neither collaborator is owned. Dialogs are children of \a dialogParent.
    CalibrationButton(CurlySpinbar *device, SpinbarSettings *settings, QWidget *dialogParent,
                      QWidget *parent);

    /// Gives the lanes of the present drum their thresholds and shows whether there are any.
    void applyCalibration();

private:
    void showMenu(QPoint position);
    void runWizard();
    void runCalibration();
    QString instructions() const;

    CurlySpinbar *m_device = nullptr;
    SpinbarSettings *m_settings = nullptr;
    QWidget *m_dialogParent = nullptr;
};
