#pragma once

#include "framework/common/connectionhelper.h"
#include "scripts/widgets/basespeedscriptselectwidget.h"

class PropertyListControl;
class QPushButton;

/// The library of scripts: edits the chosen one, makes new ones, clones, renames and removes. Every change is
/// written at once.
class SpeedScriptEditor : public BaseSpeedScriptSelectWidget
{
    Q_OBJECT

public:
    SpeedScriptEditor(SpinbarModel &model, QWidget *parent);

protected:
    QList<QWidget *> topRowWidgets(QWidget *row) override;
    QList<QWidget *> bottomRowWidgets() override { return {}; }

private:
    void createOverlay();
    void placeOverlay();
    void createSamplesOffer();
    void placeSamplesOffer();
    void followSettings();
    void applyDimension();
    void showRodentMode();

    void askScriptTitle(QWidget *parent, const QString &startTitle, bool isNew, bool isClone);
    void applyTitle(const QString &from, const QString &title, bool isNew, bool isClone);
    void removeScript();
    void addSampleScripts();
    void listAnew(const QString &title);

    QWidget *m_overlay = nullptr;
    PropertyListControl *m_rodentModeForm = nullptr;
    QPushButton *m_samplesButton = nullptr; // shown by an empty library
    ConnectionHelper m_connections;
};
