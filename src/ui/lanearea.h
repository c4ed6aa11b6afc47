#pragma once

#include "framework/common/widgets/latewidget.h"

#include <QList>

class CurlySpinbar;
class RodentStatusWidget;
class SpeedScriptViewer;
class SpinbarDetection;
class SpinbarRecord;
class SpinbarSettings;

/// The lanes of the drum side by side over a graph of the running recording. Its widgets are made when it is
/// first shown, which is when an instrument is there.
class LaneArea : public LateWidget
{
    Q_OBJECT

public:
    /// \a device and \a settings are not owned.
    LaneArea(CurlySpinbar *device, SpinbarSettings *settings, QWidget *parent);

    /// The lanes of the device's animals.
    void updateMode();
    void updateInfraRed();

    void clearRecord();
    void showRecord(SpinbarRecord &record);

private:
    void layOut() override;
    QList<RodentStatusWidget *> createLanes(const QList<SpinbarDetection *> &lanes);

    CurlySpinbar *m_device;
    SpinbarSettings *m_settings;
    QList<RodentStatusWidget *> m_ratWidgets;
    QList<RodentStatusWidget *> m_mouseWidgets;
    SpeedScriptViewer *m_graph = nullptr;
};
