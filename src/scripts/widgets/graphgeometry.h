#pragma once

#include <QList>
#include <QMargins>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>

class QFontMetrics;

/// Where the graph of speed against time puts its things, in pixels from the plot's top left corner. Time is
/// in seconds; speed is in the unit of the script's points, of which the plot always spans 0 to TopSpeed.
namespace GraphGeometry {

inline constexpr double TopSpeed = 30;
inline constexpr double MaxSpanSeconds = 1000;
inline constexpr double TraceStepSeconds = 0.2;
/// What is ever drawn of a record. The first point behind a plot is a pixel behind it, and in a plot of one
/// pixel that is a span.
inline constexpr qsizetype MaxTraceSamples = qsizetype(2 * MaxSpanSeconds / TraceStepSeconds) + 1;
inline constexpr int LaneHeight = 20;

/// Seconds across the plot: \a seconds brought into 10 to MaxSpanSeconds.
double boundedSpan(double seconds);

/// What the font asks for.
struct Metrics
{
    int labelWidth = 0; ///< of a number beside the vertical axis
    int rowHeight = 0;

    static Metrics of(const QFontMetrics &font);
};

/// The plot in a widget, with room for the numbers left of and below it and for the rows of the lanes. It has
/// no area if the widget is too small.
QRect plotRectangle(QSize widget, const QMargins &margins, int topOffset, Metrics metrics, int laneCount);

struct Scale
{
    int width = 0;
    int height = 0;
    double spanSeconds = 10;

    bool isValid() const { return width > 0 && height > 0; }
    double pixelsPerSecond() const { return width / spanSeconds; }
    double pixelsPerSpeed() const { return height / TopSpeed; }
    /// Bounded to what can be painted; what is no number is 0.
    int xAt(double seconds) const;
    int yAt(double speed) const;
    // Not bounded; only of a valid scale.
    double secondsAt(int x) const { return x / pixelsPerSecond(); }
    double speedAt(int y) const { return TopSpeed - y / pixelsPerSpeed(); }
};

/// A grid line with its number.
struct Tick
{
    int position = 0; ///< x or y of the line
    QRect labelRect;
    QString label;
};

/// The finest steps whose ticks are a label's width apart. The ticks share the width evenly.
QList<Tick> timeTicks(const Scale &scale, Metrics metrics);
/// The finest steps whose ticks are a row apart; \a unitsPerSpeed is how much a speed of 1 shows as.
QList<Tick> speedTicks(const Scale &scale, Metrics metrics, double unitsPerSpeed);

/// Indexes, ascending, of the points that are needed to draw \a points, whose x never falls: of each pixel
/// column the first, the highest, the lowest and the last.
QList<qsizetype> columnExtremes(const QList<QPoint> &points);

/// The line of a record, one sample a step, reduced as above; it ends with the first point behind the plot,
/// so that the cost depends on the plot's width only.
QList<QPoint> traceLine(const QList<double> &speeds, const Scale &scale);

/// What is to be filled below \a line: for each pixel column of the plot the mean y of the line on its way to
/// the next column, and the plot's height where there is no line.
QList<double> columnTops(const QList<QPoint> &line, const Scale &scale);

/// The y of the grid line under the row of lane \a lane, counted from 0.
int laneBottom(const Scale &scale, Metrics metrics, int lane);
/// The bar of a stay in that row; times in milliseconds.
QRect laneBar(const Scale &scale, Metrics metrics, qint64 startMs, qint64 endMs, int lane);

} // namespace GraphGeometry
