#pragma once

#include "core/experimentitem.h"
#include "scripts/widgets/graphgeometry.h"
#include "scripts/widgets/scriptcurve.h"

#include <QBrush>
#include <QFont>
#include <QList>
#include <QPen>
#include <QPoint>
#include <QRect>
#include <QString>

class QPainter;

/// The colours of the graph; those of the data are the same in every theme.
struct GraphPalette
{
    QPen axis{QColor(0x999999)};
    QPen grid{QColor(0xCCCCCC)};
    QPen text{QColor(Qt::black)};
    QPen barText{QColor(Qt::white)};
    QBrush background{QColor(Qt::white)};
    QPen line{QBrush(QColor(0x115599)), 3};
    QPen trace{QColor(0x33CC00)};
    QPen cursor{QColor(0xCC3300)};
    QBrush marker{QColor(0x11CCFF)};

    /// The colours of the theme in force.
    static GraphPalette ofTheme();
};

/// How speeds are written beside the graph.
struct GraphUnit
{
    QString text;
    int decimals = 1; ///< of the labels of markers
    double perSpeed = 1;

    /// \a dimension is a CurlySpinbar::OutputSpeedDimension; of any other only the scale is that of the
    /// points.
    static GraphUnit of(int dimension, bool isMouse);
};

struct GraphFrame
{
    GraphGeometry::Metrics metrics;
    QRect plot; ///< in the picture
    QSize pictureSize;
    GraphGeometry::Scale scale;
};

/// Draws the parts of the graph, in the order in which they lie over each other.
class GraphPainter
{
public:
    static constexpr int MarkerRadius = 4;

    /// The origin of \a painter moves to the plot's top left corner. It should have the graph's small font.
    GraphPainter(QPainter &painter, const GraphFrame &frame, const GraphPalette &palette,
                 const GraphUnit &unit);

    void drawGrid();
    void drawTrace(const QList<double> &speeds);
    void drawLanes(int count, const QList<ExperimentItem> &bars);
    void drawCurve(const ScriptCurve &curve);
    void drawMarkers(const ScriptCurve &curve);
    void drawHint(const QString &text, const QFont &font);
    void drawUnits();
    void drawCursor(double seconds);

private:
    QRect area() const { return {0, 0, m_frame.scale.width, m_frame.scale.height}; }
    void drawTicks();
    void drawMarkerLabel(const ScriptCurve::Marker &marker);
    void drawBarNumber(const QRect &rect, const QString &text);
    void fillBelow(const QList<QPoint> &line, const QColor &color);

    QPainter &m_painter;
    const GraphFrame &m_frame;
    const GraphPalette &m_palette;
    const GraphUnit &m_unit;
    QString m_seconds;
    int m_labelRoom = 0; // left of this from the right edge, a marker's label has all the room it needs
};
