#include "framework/common/texthelper.h"
#include "framework/common/widgets/simplegraphic.h"

#include <QPainter>
#include <QRandomGenerator>
#include <QToolTip>

#include <algorithm>
#include <cmath>

// The painting half of the widget: the other one stores what is to be painted.

namespace {

constexpr int MinSize = 10;
constexpr QColor DefaultColor(0x11, 0x55, 0x99);
constexpr float DefaultWidth = 2;
constexpr int Hues = 360;
constexpr int ToolTipDigits = 6;
constexpr int TextMargin = 2;
// A custom text stands at its point however its number came about.
constexpr float KeyTolerance = 1e-3F;
constexpr int MaxFontPixels = 1000;

QFont sized(QFont font, float pixels)
{
    font.setPixelSize(static_cast<int>(std::max(1.0F, std::min(std::round(pixels), float(MaxFontPixels)))));
    return font;
}

double labelLeft(double tick, double width, Qt::Alignment alignment)
{
    if (alignment & Qt::AlignHCenter)
        return tick - width / 2;
    return alignment & Qt::AlignRight ? tick - width : tick;
}

} // namespace

bool SimpleGraphic::isSeparate() const
{
    return m_drawingStyle == Drawing_SeparateBars || m_drawingStyle == Drawing_SeparateBarsLocalValue;
}

PlotGeometry::Scale SimpleGraphic::scale() const
{
    PlotGeometry::Scale scale;
    std::optional<PlotGeometry::Range> range;
    for (const Series &series : m_series) {
        scale.points = std::max(scale.points, series.points.size());
        if (series.range)
            range = range ? range->united(*series.range) : series.range;
    }
    scale.range = m_fixedRange.value_or(range.value_or(PlotGeometry::Range{}));
    const QFontMetrics metrics(sized(font(), m_textFontSize));
    scale.width = width();
    scale.height = height() - (m_textXVisible ? metrics.height() : 0);
    return scale;
}

void SimpleGraphic::reduce(double xStep)
{
    if (m_reducedStep == xStep)
        return;
    m_reducedStep = xStep;
    for (Series &series : m_series)
        series.samples = PlotGeometry::reduced(series.points, xStep);
}

void SimpleGraphic::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), m_background);
    if (width() < MinSize || height() < MinSize || m_series.isEmpty())
        return;
    painter.setFont(sized(font(), m_textFontSize));
    const PlotGeometry::Scale scale = this->scale();
    reduce(scale.xStep());
    paintGrid(painter, scale);
    if (m_drawingStyle == Drawing_Lines)
        paintLines(painter, scale);
    else
        paintBars(painter, scale);
    painter.setPen(m_textColor);
    if (m_textXVisible)
        paintTextX(painter, scale);
    if (m_textYVisible)
        paintTextY(painter, scale);
    painter.drawText(rect().adjusted(TextMargin, 0, -TextMargin, 0), m_headerAlignment | Qt::AlignTop,
                     m_title);
    painter.end();
    if (m_tooltips && underMouse())
        showToolTip(scale);
}

void SimpleGraphic::paintGrid(QPainter &painter, const PlotGeometry::Scale &scale) const
{
    painter.setPen(m_gridPen);
    const auto horizontal = [&](double y) { painter.drawLine(QPointF(0, y), QPointF(scale.width, y)); };
    if (scale.range.spansZero())
        horizontal(scale.yAt(0));
    for (const auto &[x, value] : PlotGeometry::pointTicks(scale, m_horizontalTickScale))
        painter.drawLine(QPointF(x, 0), QPointF(x, scale.height));
    if (m_bottomLineVisible)
        horizontal(scale.height - 1);
    for (const auto &[y, value] : PlotGeometry::valueTicks(scale, m_verticalTickScale))
        horizontal(y);
}

void SimpleGraphic::paintLines(QPainter &painter, const PlotGeometry::Scale &scale) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    for (auto it = m_series.begin(); it != m_series.end(); ++it) {
        const QColor color = m_colors.value(it.key(), DefaultColor);
        const float penWidth = std::max(m_widths.value(it.key(), DefaultWidth), 0.0F);
        if (scale.xStep() < 1) {
            for (const QRectF &stroke : PlotGeometry::strokes(it->samples, scale, height(), penWidth))
                painter.fillRect(stroke, color);
            continue;
        }
        painter.setPen(QPen(color, penWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        for (const QPolygonF &line : PlotGeometry::lines(it->samples, scale, height()))
            painter.drawPolyline(line);
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void SimpleGraphic::paintBars(QPainter &painter, const PlotGeometry::Scale &scale)
{
    // Bars denser than pixels stand for several points each, and for no single value.
    const bool withValues = m_drawingStyle == Drawing_SeparateBarsLocalValue && scale.xStep() >= 1;
    painter.setPen(m_textColor);
    for (auto it = m_series.begin(); it != m_series.end(); ++it) {
        const QColor color = m_colors.value(it.key(), DefaultColor);
        for (const PlotGeometry::Sample &sample : std::as_const(it->samples)) {
            const QRectF bar = PlotGeometry::bar(sample, scale);
            painter.fillRect(bar, isSeparate() ? pointColor(static_cast<int>(sample.index)) : color);
            if (withValues && !std::isnan(sample.value))
                painter.drawText(QRectF(bar.left(), 0, bar.width(), scale.height),
                                 Qt::AlignCenter | Qt::TextDontClip, valueText(sample.value));
        }
    }
}

QColor SimpleGraphic::pointColor(int index)
{
    if (!m_colors.contains(index))
        m_colors.insert(index, QColor::fromHsl(QRandomGenerator::global()->bounded(Hues), 150, 130));
    return m_colors.value(index);
}

void SimpleGraphic::paintTextX(QPainter &painter, const PlotGeometry::Scale &scale) const
{
    const QFontMetrics metrics = painter.fontMetrics();
    QList<PlotGeometry::Label> labels;
    QStringList texts;
    for (const auto &[x, value] : PlotGeometry::pointTicks(scale, m_horizontalTickScale)) {
        const QString text = tickText(value);
        if (text.isEmpty())
            continue;
        const double width = metrics.horizontalAdvance(text);
        labels.append({labelLeft(x, width, m_textXAlignment), width});
        texts.append(text);
    }
    for (const qsizetype i : PlotGeometry::fittingLabels(labels, scale.width))
        painter.drawText(QPointF(labels.at(i).left, scale.height + metrics.ascent()), texts.at(i));
}

void SimpleGraphic::paintTextY(QPainter &painter, const PlotGeometry::Scale &scale) const
{
    const QFontMetrics metrics = painter.fontMetrics();
    double free = scale.height;
    for (const auto &[y, value] : PlotGeometry::valueTicks(scale, m_verticalTickScale)) {
        // Above its line, if there is room above the number before.
        const double bottom = y - metrics.descent();
        if ((value == 0 && !m_zeroYTextVisible) || bottom > free || bottom < metrics.ascent())
            continue;
        painter.drawText(QPointF(TextMargin, bottom), QString::number(value));
        free = bottom - metrics.height();
    }
}

QString SimpleGraphic::tickText(double value) const
{
    if (m_textGridStyle == TextGrid_Time)
        return TextHelper::TimeToText(value, false);
    if (m_textGridStyle == TextGrid_Numeric)
        return QString::number(value);
    const auto key = static_cast<float>(value);
    const float tolerance = KeyTolerance * m_horizontalTickScale;
    const auto found = m_customText.lowerBound(key - tolerance);
    return found != m_customText.end() && found.key() <= key + tolerance ? found.value() : QString();
}

QString SimpleGraphic::valueText(float value) const
{
    if (!isSeparate())
        return QString::number(value, 'g', ToolTipDigits);
    const QString text = QString::number(value, 'f', 0);
    return m_drawingStyle == Drawing_SeparateBarsLocalValue ? text + u'%' : text;
}

void SimpleGraphic::mouseMoveEvent(QMouseEvent *event)
{
    QWidget::mouseMoveEvent(event);
    if (m_tooltips)
        update();
}

void SimpleGraphic::showToolTip(const PlotGeometry::Scale &scale)
{
    const QPoint at = mapFromGlobal(QCursor::pos());
    for (const Series &series : std::as_const(m_series)) {
        const auto hit = PlotGeometry::sampleAt(series.samples, scale, at, m_drawingStyle != Drawing_Lines);
        if (!hit)
            continue;
        QToolTip::showText(mapToGlobal(at), valueText(hit->value), this);
        return;
    }
    QToolTip::hideText();
}
