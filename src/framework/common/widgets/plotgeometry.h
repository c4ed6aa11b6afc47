#pragma once

#include <QList>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>

#include <optional>

/// Where a plot of series of values puts its lines, bars and ticks, in pixels of the widget.
namespace PlotGeometry {

struct Range
{
    double min = 0;
    double max = 0;

    bool spansZero() const { return min <= 0 && max >= 0; }
    Range united(const Range &other) const;
};

/// Lowest and highest of the finite values; none if there are none.
std::optional<Range> rangeOf(const QList<float> &values);

struct Scale
{
    double width = 0;
    double height = 0;
    Range range;
    qsizetype points = 0; ///< of the longest series

    double xStep() const { return points > 0 ? width / double(points) : width; }
    /// 0 for a range that is none, or too wide for numbers.
    double yScale() const;
    /// Not bounded. A range without extent lies in the middle.
    double yAt(double value) const;
    /// Where bars stand and horizontal lines begin: the zero level, or the bottom if the range doesn't have
    /// it.
    double baseLevel() const;
};

struct Sample
{
    qsizetype index = 0;
    float value = 0;
};

/// The samples that are needed to draw \a values: all of them, or of each pixel column the first, lowest,
/// highest and last. What is no number stays only where it makes a gap.
QList<Sample> reduced(const QList<float> &values, double xStep);

/// Lines through the samples, broken where one is no number and otherwise in pieces that join; each y is kept
/// between 0 and \a maxY.
QList<QPolygonF> lines(const QList<Sample> &samples, const Scale &scale, double maxY);

/// The same for samples denser than pixels: a stroke for each pixel column, at least \a penWidth high, which
/// reaches from the column before. Far cheaper than lines, and without overlap.
QList<QRectF> strokes(const QList<Sample> &samples, const Scale &scale, double maxY, double penWidth);

/// From the base level to the value, within the scale's height; empty for what is no number.
QRectF bar(const Sample &sample, const Scale &scale);

/// The sample nearest to \a at by its x, if \a at is on its bar or close to its point.
std::optional<Sample> sampleAt(const QList<Sample> &samples, const Scale &scale, const QPointF &at,
                               bool bars);

struct Tick
{
    double position = 0; ///< x or y
    double value = 0;    ///< in points or in values
};

/// A tick each \a tickScale points; of ticks too close to be told apart only each second, third and so on.
QList<Tick> pointTicks(const Scale &scale, double tickScale);
/// A tick each \a tickScale of the value, upwards from the base level, thinned out likewise.
QList<Tick> valueTicks(const Scale &scale, double tickScale);

struct Label
{
    double left = 0;
    double width = 0;
};

/// Which of \a labels, in ascending order, are written: those that keep a distance from the one before and
/// stay within \a width.
QList<qsizetype> fittingLabels(const QList<Label> &labels, double width);

} // namespace PlotGeometry
