#pragma once

#include "core/experimentitem.h"
#include "device/curlyspinbar.h"
#include "framework/common/connectionhelper.h"
#include "scripts/scriptpoints.h"
#include "scripts/widgets/graphpainter.h"

#include <QImage>
#include <QList>
#include <QPointer>
#include <QWidget>

class PropertyListControl;
class SpeedScript;
class QPushButton;
class QVBoxLayout;

/// The graph of speed against time: of a script, which can be edited on it with the mouse, or of a record
/// with a row of bars for each lane. What is grabbed is decided by the colours of the picture painted last.
class SpeedScriptViewer : public QWidget
{
    Q_OBJECT

public:
    /// \a script may be null and is not owned. Editable, the graph has markers, the form of the script's
    /// properties and a button that tells how to edit.
    SpeedScriptViewer(SpeedScript *script, bool editable, QWidget *parent);
    ~SpeedScriptViewer() override;

    void setScript(SpeedScript *script);
    /// The unit of the numbers shown, and the drum that it depends on.
    void setDimension(CurlySpinbar::OutputSpeedDimension dimension,
                      CurlySpinbarDevice::RodentMode rodentMode);
    /// Negative for none.
    void setCursorTime(double seconds);
    /// Seconds across the plot while there is no script.
    void setTimeSpan(double seconds);
    /// Rows under the plot, with stays whose times count from the start of the plot in ms.
    void setLanes(int count, const QList<ExperimentItem> &bars);
    /// Motor radians per second, one for each 0.2 s.
    void setSpeedTrace(const QList<double> &speeds);
    /// Forgets the script and the record.
    void clearRecord();

    /// In the widget, as painted last.
    QRect plotRectangle() const { return m_frame.plot; }

signals:
    void resized();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void createInfoButton();
    void showInfo();
    void rebuildForm();
    void placePlot();
    void describe();

    void updateGraph();

    double spanSeconds() const;
    void preparePicture();
    void paintGraph(QPainter &painter);
    void paintScript(GraphPainter &graph);

    void press(Qt::KeyboardModifiers modifiers);
    void startDrag(qsizetype index);
    void drag(Qt::KeyboardModifiers modifiers);
    void release();
    void store(const ScriptPoints &points);
    QPoint cursorInPlot() const;
    bool isPainted(QPoint position, const QColor &color) const;

    const bool m_editable;
    QPointer<SpeedScript> m_script;
    PropertyListControl *m_form = nullptr; // owned as a child; rebuilt with each script
    QVBoxLayout *m_layout = nullptr;
    QPushButton *m_infoButton = nullptr;
    ConnectionHelper m_scriptConnections;
    ConnectionHelper m_themeConnections;

    GraphPalette m_palette;
    GraphUnit m_unit;
    GraphFrame m_frame;
    QImage m_picture;
    int m_topOffset = 0;

    ScriptPoints m_points; // the working copy; in an empty script's place it has a level line
    qsizetype m_dragIndex = -1;
    bool m_dragging = false;

    QList<double> m_trace;
    QList<ExperimentItem> m_bars;
    int m_laneCount = 0;
    double m_timeSpan = 10;
    double m_cursorTime = -1;
};
