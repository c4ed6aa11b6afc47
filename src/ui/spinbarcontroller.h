#pragma once

#include "framework/common/connectionhelper.h"

#include <QWidget>

class CalibrationButton;
class ConnectionBar;
class CurlySpinbar;
class GridControl;
class LaneArea;
class QComboBox;
class QLabel;
class QPushButton;
class SpeedControl;
class SpinbarModel;
class SpinbarSettings;

/// The surface on which an experiment is driven: link and power, rats or mice, grid, speed, recording, the
/// lanes, and a graph of the running recording. It is enabled while the instrument is there.
class SpinbarController : public QWidget
{
    Q_OBJECT

public:
    /// \a device is not owned; without one the widget stays empty.
    SpinbarController(CurlySpinbar *device, QWidget *parent);
    ~SpinbarController() override;

    /// The one made last, or null.
    static SpinbarController *instance();

    void updateFirmware();

signals:
    void firmwareUpdateRequested();

private:
    void createWidgets();
    void layOutPanel();
    void connectDevice();
    void connectSettings();
    void connectRecording();
    void prepare();

    void updateConnection();
    void updateMode();
    void showRecording(bool recording);
    void refreshGraph();

    CurlySpinbar *m_device = nullptr;
    SpinbarModel *m_model = nullptr;
    SpinbarSettings *m_settings = nullptr;
    ConnectionBar *m_connectionBar = nullptr;
    QComboBox *m_rodentBox = nullptr;
    CalibrationButton *m_calibrationButton = nullptr;
    GridControl *m_grid = nullptr;
    SpeedControl *m_speed = nullptr;
    QPushButton *m_recordButton = nullptr;
    QPushButton *m_stopButton = nullptr;
    QLabel *m_notConnectedLabel = nullptr;
    QWidget *m_panel = nullptr;
    LaneArea *m_laneArea = nullptr;
    ConnectionHelper m_connections;
};
