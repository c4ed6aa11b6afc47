#include "scripts/widgets/speedscriptviewer.h"

#include "framework/common/widgets/mediahelper.h"
#include "framework/common/widgets/stylehelper.h"
#include "framework/settings/widgets/propertylistcontrol.h"
#include "scripts/speedscript.h"

#include <QCoreApplication>
#include <QCursor>
#include <QDialog>
#include <QFontInfo>
#include <QIcon>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QMargins Margins(16, 8, 8, 8);
constexpr int RoomAbovePlot = 12;
constexpr int RoomBelowForm = 32;
constexpr double SmallFontFactor = 0.8;

constexpr int InfoButtonSize = 24;
constexpr int InfoButtonMargin = 8;
constexpr int InfoDialogMaxWidth = 600;

QFont smallFont(const QFont &font)
{
    QFont small = font;
    small.setPixelSize(std::max(1, static_cast<int>(QFontInfo(font).pixelSize() * SmallFontFactor)));
    return small;
}

} // namespace

SpeedScriptViewer::SpeedScriptViewer(SpeedScript *script, bool editable, QWidget *parent)
    : QWidget(parent)
    , m_editable(editable)
    , m_palette(GraphPalette::ofTheme())
    , m_unit(GraphUnit::of(CurlySpinbar::RotationsPerMinute, false))
{
    m_layout = new QVBoxLayout(this);
    m_layout->setContentsMargins(Margins);
    m_layout->addStretch(100);
    if (m_editable)
        createInfoButton();
    m_themeConnections << connect(StyleHelper::Instance(), &StyleHelper::Styler::changed, this, [this] {
        m_palette = GraphPalette::ofTheme();
        update();
    });
    setAccessibleName(tr("Speed graph"));
    setScript(script);
}

SpeedScriptViewer::~SpeedScriptViewer() = default;

void SpeedScriptViewer::createInfoButton()
{
    m_infoButton = new QPushButton(this);
    m_infoButton->setFlat(true);
    m_infoButton->setFixedSize(InfoButtonSize, InfoButtonSize);
    m_infoButton->setIconSize({InfoButtonSize, InfoButtonSize});
    m_infoButton->setIcon(MediaHelper::iconColored(u":/icons/information.svg"_s, u"#159"_s, u"#000"_s));
    m_infoButton->setCursor(Qt::PointingHandCursor);
    m_infoButton->setToolTip(tr("Script editing information"));
    m_infoButton->setAccessibleName(m_infoButton->toolTip());
    connect(m_infoButton, &QPushButton::clicked, this, &SpeedScriptViewer::showInfo);
}

void SpeedScriptViewer::showInfo()
{
    const QStringList entries{
        tr("To create a new marker press anywhere on the blue line and drag the new marker to desired "
           "position.<br>"),
        tr("To remove a marker: <ul style=\"margin: 0\"><li>Press 'ALT' on the keyboard and click the "
           "marker<br><em>or</em></li><li>Move the marker and join it with another marker</li></ul>"),
        tr("By default the marker positions are rounded to whole numbers (seconds and RPM).") + ' '_L1
            + tr("If a more accurate position handling is required press and hold the 'SHIFT' key while "
                 "dragging markers"),
    };
    QDialog dialog(this);
    dialog.setWindowTitle(m_infoButton->toolTip());
    dialog.setMaximumWidth(InfoDialogMaxWidth);
    auto *label = new QLabel(entries.join("<br/>"_L1));
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *layout = new QVBoxLayout(&dialog);
    layout->addWidget(label);
    dialog.exec();
}

void SpeedScriptViewer::setScript(SpeedScript *script)
{
    m_scriptConnections.clear();
    m_script = script;
    m_dragging = false;
    if (script) {
        m_scriptConnections << connect(script, &AbstractSettings::propertyChanged, this,
                                       &SpeedScriptViewer::placePlot)
                            << connect(script, &QObject::destroyed, this, [this] { setScript(nullptr); });
    }
    if (m_editable)
        rebuildForm();
    placePlot();
}

void SpeedScriptViewer::rebuildForm()
{
    delete m_form;
    m_form = nullptr;
    if (!m_script)
        return;
    m_form = new PropertyListControl(m_script, {}, PropertyListControl::ViewMode_AllNoScroll, this);
    m_form->setAutoFocus(false); // going through the scripts by keyboard stays where it is
    m_layout->insertWidget(0, m_form, 0, Qt::AlignTop);
    m_infoButton->raise();
}

void SpeedScriptViewer::setDimension(CurlySpinbar::OutputSpeedDimension dimension,
                                     CurlySpinbarDevice::RodentMode rodentMode)
{
    m_unit = GraphUnit::of(dimension, rodentMode == CurlySpinbarDevice::Mice);
    describe();
    update();
}

void SpeedScriptViewer::setCursorTime(double seconds)
{
    m_cursorTime = seconds;
    updateGraph();
}

void SpeedScriptViewer::setTimeSpan(double seconds)
{
    m_timeSpan = seconds;
    describe();
    update();
}

void SpeedScriptViewer::setLanes(int count, const QList<ExperimentItem> &bars)
{
    m_laneCount = count;
    m_bars = bars;
    update();
}

void SpeedScriptViewer::setSpeedTrace(const QList<double> &speeds)
{
    // A copy: of a shared list the record would have to make one, with room to spare, at its next sample.
    m_trace = QList<double>(speeds.cbegin(),
                            speeds.cbegin() + std::min(speeds.size(), GraphGeometry::MaxTraceSamples));
    update();
}

void SpeedScriptViewer::clearRecord()
{
    setScript(nullptr);
    m_trace.clear();
    m_bars.clear();
    m_laneCount = 0;
}

void SpeedScriptViewer::placePlot()
{
    m_topOffset = Margins.top() + (m_form ? m_form->sizeHint().height() + RoomBelowForm : RoomAbovePlot);
    describe();
    update();
}

/// What the axes span, for who doesn't see them.
void SpeedScriptViewer::describe()
{
    const double top = GraphGeometry::TopSpeed * m_unit.perSpeed;
    setAccessibleDescription(u"0–%1 %2, 0–%3 %4"_s.arg(
        QString::number(spanSeconds(), 'f', 0), QCoreApplication::translate("Generic", "s"),
        QString::number(top, 'f', m_unit.decimals), m_unit.text));
}

void SpeedScriptViewer::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    placePlot();
}

void SpeedScriptViewer::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (m_infoButton) {
        m_infoButton->move(width() - InfoButtonSize - InfoButtonMargin, InfoButtonMargin);
        m_infoButton->raise();
    }
    emit resized();
}

/// Without the form, which costs as much as the graph.
void SpeedScriptViewer::updateGraph()
{
    update(rect().adjusted(0, m_topOffset - m_frame.metrics.rowHeight, 0, 0));
}

void SpeedScriptViewer::paintEvent(QPaintEvent *)
{
    preparePicture();
    QPainter(this).drawImage(0, 0, m_picture);
}

double SpeedScriptViewer::spanSeconds() const
{
    return GraphGeometry::boundedSpan(m_script ? m_script->getDurationSeconds() : m_timeSpan);
}

void SpeedScriptViewer::preparePicture()
{
    const QSize pixels = size() * devicePixelRatio();
    if (m_picture.size() != pixels)
        m_picture = QImage(pixels, QImage::Format_ARGB32_Premultiplied);
    m_picture.setDevicePixelRatio(devicePixelRatio());
    m_picture.fill(Qt::transparent);

    const QFont small = smallFont(font());
    m_frame.pictureSize = size();
    m_frame.metrics = GraphGeometry::Metrics::of(QFontMetrics(small, this));
    m_frame.plot = GraphGeometry::plotRectangle(size(), Margins, m_topOffset, m_frame.metrics, m_laneCount);
    m_frame.scale = {m_frame.plot.width(), m_frame.plot.height(), spanSeconds()};
    if (!m_frame.scale.isValid() || m_picture.isNull())
        return;

    QPainter painter(&m_picture);
    painter.setFont(small);
    paintGraph(painter);
}

void SpeedScriptViewer::paintGraph(QPainter &painter)
{
    GraphPainter graph(painter, m_frame, m_palette, m_unit);
    graph.drawGrid();
    if (!m_trace.isEmpty()) {
        graph.drawTrace(m_trace);
        graph.drawLanes(m_laneCount, m_bars);
    }
    if (m_script)
        paintScript(graph);
    graph.drawUnits();
    graph.drawCursor(m_cursorTime);
}

void SpeedScriptViewer::paintScript(GraphPainter &graph)
{
    if (!m_dragging)
        m_points = m_script->pointList();
    const bool isNew = m_points.isEmpty();
    if (isNew)
        m_points = {{0, 0}, {static_cast<double>(m_script->getDurationSeconds()), 0}};
    const ScriptCurve curve = ScriptCurve::of(m_points, m_frame.scale);
    graph.drawCurve(curve);
    if (!m_editable)
        return;
    graph.drawMarkers(curve);
    if (isNew)
        graph.drawHint(tr("Click the line or markers,\r\nhold and drag to desired position"), font());
}

bool SpeedScriptViewer::event(QEvent *event)
{
    // Rows of the form come and go after the change that they depend on.
    if (event->type() == QEvent::LayoutRequest)
        placePlot();
    if (m_editable && m_script && m_frame.scale.isValid()) {
        if (event->type() == QEvent::MouseButtonPress)
            press(static_cast<QMouseEvent *>(event)->modifiers());
        else if (event->type() == QEvent::MouseMove)
            drag(static_cast<QMouseEvent *>(event)->modifiers());
        else if (event->type() == QEvent::MouseButtonRelease)
            release();
    }
    return QWidget::event(event);
}

void SpeedScriptViewer::press(Qt::KeyboardModifiers modifiers)
{
    m_dragging = false;
    const QPoint position = cursorInPlot();
    if (isPainted(position, m_palette.marker.color())) {
        const qsizetype index = markerAt(m_points, m_frame.scale, position, GraphPainter::MarkerRadius);
        if (index < 0)
            return;
        if (modifiers & Qt::AltModifier) {
            m_points.removeAt(index);
            store(m_points);
            return;
        }
        startDrag(index);
    } else if (isPainted(position, m_palette.line.color())) {
        m_points.append(pointAt(m_frame.scale, position, m_script->getDurationSeconds()));
        startDrag(m_points.size() - 1);
    }
}

void SpeedScriptViewer::startDrag(qsizetype index)
{
    m_dragging = true;
    m_dragIndex = index;
    setCursor(Qt::ClosedHandCursor);
}

void SpeedScriptViewer::drag(Qt::KeyboardModifiers modifiers)
{
    if (!m_dragging || m_dragIndex < 0 || m_dragIndex >= m_points.size())
        return;
    const ScriptPoint point = pointAt(m_frame.scale, cursorInPlot(), m_script->getDurationSeconds());
    m_points[m_dragIndex] = snapped(point, modifiers & Qt::ShiftModifier ? Snap::Tenths : Snap::WholeNumbers);
    updateGraph();
}

void SpeedScriptViewer::release()
{
    if (!m_dragging)
        return;
    m_dragging = false;
    setCursor(Qt::ArrowCursor);
    store(mergedByTime(m_points));
}

void SpeedScriptViewer::store(const ScriptPoints &points)
{
    m_script->setPointList(points);
    m_script->storePoints();
    m_script->save();
    update();
}

QPoint SpeedScriptViewer::cursorInPlot() const
{
    return mapFromGlobal(QCursor::pos()) - m_frame.plot.topLeft();
}

/// Whether any of the nine pixels around a place in the plot has exactly this colour.
bool SpeedScriptViewer::isPainted(QPoint position, const QColor &color) const
{
    const QPoint middle = position + m_frame.plot.topLeft();
    for (int dy = -1; dy <= 1; ++dy) {
        for (int dx = -1; dx <= 1; ++dx) {
            const QPoint pixel = (middle + QPoint(dx, dy)) * m_picture.devicePixelRatio();
            if (m_picture.valid(pixel) && m_picture.pixel(pixel) == color.rgba())
                return true;
        }
    }
    return false;
}
