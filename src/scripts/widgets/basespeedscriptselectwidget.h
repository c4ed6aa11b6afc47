#pragma once

#include "device/curlyspinbar.h"
#include "scripts/scriptlibrary.h"

#include <QList>
#include <QString>
#include <QWidget>

class QComboBox;
class QPushButton;
class SpeedScript;
class SpeedScriptViewer;
class SpinbarModel;

/// Chooses a script of the scripts folder and shows its graph. The choice is remembered in the settings.
class BaseSpeedScriptSelectWidget : public QWidget
{
    Q_OBJECT

public:
    /// The constructor of a derived class calls buildInterface(). \a model must outlive the widget.
    BaseSpeedScriptSelectWidget(SpinbarModel &model, bool editable, QWidget *parent);

    /// Lists the folder anew and selects \a title or, if that is empty, what was chosen last.
    void reloadList(const QString &title);
    void unloadScript();
    void setDimension(CurlySpinbar::OutputSpeedDimension dimension,
                      CurlySpinbarDevice::RodentMode rodentMode);

protected:
    /// For the row of the combo box, which is to be their parent; null stands for a gap.
    virtual QList<QWidget *> topRowWidgets(QWidget *row) = 0;
    /// For a row under the graph; null is passed over.
    virtual QList<QWidget *> bottomRowWidgets() = 0;
    virtual void scriptChanged() {}

    void buildInterface();
    /// A small square button with an icon of the resources that follows the theme.
    static QPushButton *makeToolButton(const QString &text, const QString &icon, QWidget *parent);
    /// Enabled exactly while a script is loaded.
    void addDependentWidget(QWidget *widget) { m_dependentWidgets.append(widget); }

    SpinbarModel &model() const { return m_model; }
    const ScriptLibrary &library() const { return m_library; }
    /// Null if none is loaded.
    SpeedScript *script() const { return m_script; }
    SpeedScriptViewer *graph() const { return m_graph; }
    /// What the combo box shows.
    QString title() const;

private:
    QWidget *createTopRow();
    QComboBox *createCombo(QWidget *parent);
    void selectScript();
    void updateDependentWidgets();

    SpinbarModel &m_model;
    ScriptLibrary m_library;
    SpeedScript *m_script = nullptr;
    SpeedScriptViewer *m_graph = nullptr;
    QComboBox *m_combo = nullptr;
    QList<QWidget *> m_dependentWidgets;
    const bool m_editable;
};
