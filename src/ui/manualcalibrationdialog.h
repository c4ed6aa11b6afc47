#pragma once

#include <QDialog>
#include <QList>

class QLayout;
class QSpinBox;
class SpinbarSettings;

/// The thresholds of both drums, to be typed.
class ManualCalibrationDialog : public QDialog
{
    Q_OBJECT

public:
    /// \a settings are not owned; they take the values when the dialog is accepted.
    ManualCalibrationDialog(SpinbarSettings *settings, QWidget *parent);

    void accept() override;

private:
    QList<QSpinBox *> addRow(const QString &title, const QString &thresholds, int lanes);
    QLayout *createButtons();

    SpinbarSettings *m_settings = nullptr;
    QList<QSpinBox *> m_ratBoxes;
    QList<QSpinBox *> m_mouseBoxes;
};
