#pragma once

#include "framework/common/connectionhelper.h"

#include <QWidget>

class IconWidget;
class QLabel;
class SpinbarDetection;

/// One lane of the drum at a glance: whether an animal is on it, for how long and how far it has run. Bound
/// to its lane for life.
class RodentStatusWidget : public QWidget
{
    Q_OBJECT

public:
    /// \a detection is not owned and may not end before the widget.
    RodentStatusWidget(SpinbarDetection *detection, QWidget *parent);

    int laneIndex() const { return m_laneIndex; }
    /// The reading of the sensor against its threshold.
    void setInfraRedVisible(bool visible);

private:
    void createWidgets(bool rat);
    void showLane(const SpinbarDetection &detection);

    IconWidget *m_rodentIcon = nullptr;
    IconWidget *m_noRodentIcon = nullptr;
    QLabel *m_infraRedLabel = nullptr;
    QLabel *m_timeLabel = nullptr;
    QLabel *m_distanceLabel = nullptr;
    int m_laneIndex = -1;
    ConnectionHelper m_connections;
};
