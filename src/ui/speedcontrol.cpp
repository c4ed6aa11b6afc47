#include "ui/speedcontrol.h"

#include "ui/controlrow.h"
#include "ui/directjumpslider.h"

#include "core/spinbarmodel.h"
#include "core/spinbarsettings.h"
#include "device/speedconversion.h"
#include "framework/common/widgets/iconwidget.h"
#include "framework/settings/widgets/propertylistcontrol.h"
#include "scripts/widgets/speedscriptselectandrunwidget.h"
#include "scripts/widgets/speedscriptviewer.h"

#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QVBoxLayout>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

// Just above the greatest speed, to which the device cuts it.
constexpr int SliderMaximum = 4744;
constexpr int SliderPerRotation = 1000;
constexpr int IconSpacing = 4;
constexpr int SliderSpacing = 2;
constexpr int TabMargin = 8;
constexpr int Filling = 100;
// With the smaller height everything has its place in the smallest window.
constexpr int LeastScriptGraphHeight = 80;
constexpr int ScriptGraphHeight = 140;

int decimalsOf(CurlySpinbar::OutputSpeedDimension dimension)
{
    const bool coarse =
        dimension == CurlySpinbar::RotationsPerMinute || dimension == CurlySpinbar::CentimetersPerSecond;
    return coarse ? 2 : 3;
}

QString translated(const char *source)
{
    return QCoreApplication::translate("SpinbarController", source);
}

} // namespace

SpeedControl::SpeedControl(SpinbarModel &model, QWidget *parent)
    : QWidget(parent)
    , m_device(model.device())
    , m_settings(model.settings())
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(createTitleRow());
    m_tabs = new QTabWidget(this);
    layout->addWidget(m_tabs, Filling);
    createManualWidgets();
    createRunner(model);
    connectWidgets();
}

QLayout *SpeedControl::createTitleRow()
{
    m_standingIcon = ControlRow::icon(
        u":/resources/images/speed_on.svg"_s, u"#666"_s,
        translated(QT_TRANSLATE_NOOP("SpinbarController", "Вращение не осуществляется")), this);
    m_standingIcon->animate(false);
    m_rotationIcon =
        ControlRow::icon(u":/resources/images/speed_on.svg"_s, u"#FFF"_s,
                         translated(QT_TRANSLATE_NOOP("SpinbarController", "Вращение включено")), this);
    auto *unit = new PropertyListControl(m_settings, u"RotationDimension"_s,
                                         PropertyListControl::ViewMode_Property, this);
    unit->showDefaultButtons(false);
    unit->showHeaders(false);
    unit->setMinimumEditorWidth(0);
    m_offButton = ControlRow::offButton(
        u"#F60"_s, translated(QT_TRANSLATE_NOOP("SpinbarController", "Выключить вращение")), this);
    auto *title = new QLabel(translated(QT_TRANSLATE_NOOP("SpinbarController", "Speed")), this);
    return ControlRow::create(IconSpacing,
                              {m_standingIcon, m_rotationIcon, title, unit, nullptr, m_offButton});
}

void SpeedControl::createManualWidgets()
{
    const QString name = translated(QT_TRANSLATE_NOOP("SpinbarController", "Speed"));
    QWidget *page = addPage(translated(QT_TRANSLATE_NOOP("SpinbarController", "Manual control")));
    m_slider = new DirectJumpSlider(page);
    m_slider->setRange(0, SliderMaximum);
    m_slider->setValue(0);
    m_slider->setAccessibleName(name);
    m_spinBox = new QDoubleSpinBox(page);
    m_spinBox->setStyleSheet(u"font-size: 14px"_s);
    m_spinBox->setAccessibleName(name);
    // The tab is as high as that of the scripts.
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(TabMargin, TabMargin, TabMargin, TabMargin);
    layout->addLayout(ControlRow::createFilled(SliderSpacing, {m_slider, m_spinBox}));
    layout->addStretch();
}

void SpeedControl::createRunner(SpinbarModel &model)
{
    QWidget *page = addPage(translated(QT_TRANSLATE_NOOP("SpinbarController", "Script")));
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins({});
    m_runner = new SpeedScriptSelectAndRunWidget(model, page);
    m_runner->findChild<SpeedScriptViewer *>()->setMinimumHeight(LeastScriptGraphHeight);
    layout->addWidget(m_runner);
}

QWidget *SpeedControl::addPage(const QString &title)
{
    // Added before it is filled: what is moved with all its children takes on the style sheet anew.
    auto *page = new QWidget;
    m_tabs->addTab(page, title);
    return page;
}

void SpeedControl::connectWidgets()
{
    connect(m_slider, &QSlider::valueChanged, this, &SpeedControl::apply);
    connect(m_spinBox, &QDoubleSpinBox::valueChanged, this, [this](double speed) {
        const double motorSpeed =
            m_device->convertSpeed(speed, m_dimension, CurlySpinbar::Speed_Motor_RotationsPerSecond);
        m_slider->setValue(int(motorSpeed * SliderPerRotation));
    });
    connect(m_offButton, &QPushButton::clicked, this, &SpeedControl::turnOff);
    connect(m_tabs, &QTabWidget::currentChanged, this, [this] {
        m_runner->setRunning(false);
        turnOff();
    });
    connect(m_settings, &SpinbarSettings::changedRotationDimension, this, &SpeedControl::updateDimension);
    connect(m_settings, &SpinbarSettings::changedRodentMode, this, &SpeedControl::passDimensionToScript);
}

double SpeedControl::shownSpeed() const
{
    return m_device->convertSpeed(double(m_slider->value()) / SliderPerRotation,
                                  CurlySpinbar::Speed_Motor_RotationsPerSecond, m_dimension);
}

void SpeedControl::apply()
{
    const int speed = m_slider->value();
    m_device->setMotorSpeed(double(speed) / SliderPerRotation);
    {
        const QSignalBlocker blocker(m_spinBox);
        m_spinBox->setValue(shownSpeed());
    }
    m_standingIcon->setVisible(speed == 0);
    m_rotationIcon->setVisible(speed != 0);
    m_offButton->setVisible(speed != 0);
}

void SpeedControl::turnOff()
{
    m_slider->setValue(0);
}

void SpeedControl::setSliderEnabled(bool enabled)
{
    m_slider->setEnabled(enabled);
}

void SpeedControl::updateDimension()
{
    m_dimension = m_settings->getRotationDimension();
    const int decimals = decimalsOf(m_dimension);
    const QSignalBlocker blocker(m_spinBox);
    m_spinBox->setDecimals(decimals);
    m_spinBox->setSingleStep(std::pow(0.1, decimals));
    m_spinBox->setMaximum(m_device->convertSpeed(SpeedConversion::MaxMotorSpeed,
                                                 CurlySpinbar::Speed_Motor_RotationsPerSecond, m_dimension));
    m_spinBox->setValue(shownSpeed());
    passDimensionToScript();
}

void SpeedControl::passDimensionToScript()
{
    m_runner->setDimension(m_dimension, m_settings->getRodentMode());
}

QSize SpeedControl::sizeHint() const
{
    return QWidget::sizeHint() + QSize(0, ScriptGraphHeight - LeastScriptGraphHeight);
}
