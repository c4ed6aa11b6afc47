#include "ui/gridcontrol.h"

#include "ui/controlrow.h"
#include "ui/directjumpslider.h"

#include "device/curlyspinbar.h"
#include "framework/common/widgets/iconwidget.h"

#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr double MaximumMa = 15.0;
constexpr double StepMa = 0.1;
constexpr int SliderPerMa = 1000;
constexpr int IconSpacing = 4;
constexpr int SliderSpacing = 2;

} // namespace

GridControl::GridControl(CurlySpinbar *device, QWidget *parent)
    : QWidget(parent)
    , m_device(device)
{
    createWidgets();
    const QString name = QCoreApplication::translate("SpinbarController", "Electric grid");
    m_slider->setAccessibleName(name);
    m_spinBox->setAccessibleName(name);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(
        ControlRow::create(IconSpacing, {m_offIcon, m_onIcon, new QLabel(name, this), nullptr, m_offButton}));
    layout->addLayout(ControlRow::createFilled(SliderSpacing, {m_slider, m_spinBox}));
    connectWidgets();
}

void GridControl::createWidgets()
{
    // The grid under current has deliberately the tooltip of the one without.
    const QString tooltip =
        QCoreApplication::translate("SpinbarController", "Электрическая сетка не включена");
    m_offIcon = ControlRow::icon(u":/resources/images/bolt.svg"_s, u"#666"_s, tooltip, this);
    m_onIcon = ControlRow::icon(u":/resources/images/bolt.svg"_s, u"#C30"_s, tooltip, this);
    m_offButton = ControlRow::offButton(
        u"#C30"_s, QCoreApplication::translate("SpinbarController", "Выключить электросетку"), this);
    m_slider = new DirectJumpSlider(this);
    m_slider->setRange(0, int(MaximumMa) * SliderPerMa);
    m_slider->setValue(0);
    m_spinBox = new QDoubleSpinBox(this);
    m_spinBox->setRange(0.0, MaximumMa);
    m_spinBox->setSuffix(QCoreApplication::translate("Generic", "mA"));
    m_spinBox->setDecimals(1);
    m_spinBox->setSingleStep(StepMa);
}

void GridControl::connectWidgets()
{
    connect(m_slider, &QSlider::valueChanged, this, &GridControl::apply);
    connect(m_spinBox, &QDoubleSpinBox::valueChanged, this,
            [this](double current) { m_slider->setValue(int(current * SliderPerMa)); });
    connect(m_offButton, &QPushButton::clicked, this, &GridControl::turnOff);
}

void GridControl::apply()
{
    const int level = m_slider->value();
    const double current = double(level) / SliderPerMa;
    m_device->setGrid(current);
    m_spinBox->setValue(current);
    // Rounding by the spin box may have moved the slider meanwhile.
    const bool on = m_slider->value() != 0;
    m_offIcon->setVisible(!on);
    m_onIcon->setVisible(on);
    m_offButton->setVisible(on);
}

void GridControl::turnOff()
{
    m_slider->setValue(0);
}

void GridControl::setSliderEnabled(bool enabled)
{
    m_slider->setEnabled(enabled);
}
