#pragma once

#include "scripts/widgets/basespeedscriptselectwidget.h"

#include <memory>

class QLabel;
class ScriptPlayer;

/// Plays the chosen script to the instrument, with a cursor on its graph.
class SpeedScriptSelectAndRunWidget : public BaseSpeedScriptSelectWidget
{
    Q_OBJECT

public:
    SpeedScriptSelectAndRunWidget(SpinbarModel &model, QWidget *parent);
    ~SpeedScriptSelectAndRunWidget() override;

    /// Stopping also orders the stop of the drum, whether or not a script runs.
    void setRunning(bool running);

protected:
    QList<QWidget *> topRowWidgets(QWidget *row) override;
    QList<QWidget *> bottomRowWidgets() override;
    void scriptChanged() override;

private:
    void connectPlayer();
    void showRunning(bool running);
    void showCycle();
    void editScripts();

    QPushButton *m_runButton = nullptr;
    QPushButton *m_stopButton = nullptr;
    QLabel *m_cycleLabel = nullptr;
    std::unique_ptr<ScriptPlayer> m_player;
};
