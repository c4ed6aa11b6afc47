#include "ui/spinbarcontroller.h"

#include "ui/calibrationbutton.h"
#include "ui/connectionbar.h"
#include "ui/gridcontrol.h"
#include "ui/lanearea.h"
#include "ui/speedcontrol.h"

#include "core/spinbarmodel.h"
#include "core/spinbarrecord.h"
#include "core/spinbarsettings.h"
#include "device/curlyspinbar.h"
#include "framework/common/texthelper.h"
#include "framework/common/widgets/listcombobox.h"
#include "framework/common/widgets/mediahelper.h"
#include "framework/common/widgets/stylehelper.h"

#include <QCoreApplication>
#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int PanelWidth = 300;
constexpr int PanelMargin = 16;
constexpr int RodentGap = 8;
constexpr int CalibrationGap = 2;
constexpr int SectionGap = 24;
constexpr int BigButtonHeight = 40;
constexpr int Filling = 100;

SpinbarController *theController = nullptr;

QPushButton *bigButton(const QString &text, QWidget *parent)
{
    auto *button = new QPushButton(text, parent);
    button->setStyleSheet(u"font-size: 18px"_s);
    button->setCursor(Qt::PointingHandCursor);
    button->setMinimumHeight(BigButtonHeight);
    return button;
}

} // namespace

SpinbarController::SpinbarController(CurlySpinbar *device, QWidget *parent)
    : QWidget(parent)
    , m_device(device)
{
    if (!device)
        return;
    theController = this;
    m_model = SpinbarModel::instance();
    m_settings = m_model->settings();
    createWidgets();
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_panel, 0);
    layout->addWidget(m_notConnectedLabel, Filling);
    layout->addWidget(m_laneArea, Filling);
    layOutPanel();
    connectDevice();
    connectSettings();
    prepare();
    connectRecording();
}

SpinbarController::~SpinbarController()
{
    if (theController == this)
        theController = nullptr;
}

SpinbarController *SpinbarController::instance()
{
    return theController;
}

void SpinbarController::updateFirmware()
{
    emit firmwareUpdateRequested();
}

void SpinbarController::createWidgets()
{
    m_panel = new QWidget(this);
    m_laneArea = new LaneArea(m_device, m_settings, this);
    m_notConnectedLabel = new QLabel(tr("Device is not connected"), this);
    m_notConnectedLabel->setStyleSheet(u"font-size: 20px; color: #999"_s);
    m_notConnectedLabel->setAlignment(Qt::AlignCenter);
    m_connectionBar = new ConnectionBar(m_device, m_panel);
    m_rodentBox = new ListComboBox(m_panel);
    m_rodentBox->addItem(MediaHelper::icon(u":/resources/images/rat.png"_s),
                         QCoreApplication::translate("RodentMode", "Rats"));
    m_rodentBox->addItem(MediaHelper::icon(u":/resources/images/mouse.png"_s),
                         QCoreApplication::translate("RodentMode", "Mice"));
    m_rodentBox->setAccessibleName(QCoreApplication::translate("Generic", "RodentMode"));
    m_calibrationButton = new CalibrationButton(m_device, m_settings, this, m_panel);
    m_grid = new GridControl(m_device, m_panel);
    m_speed = new SpeedControl(*m_model, m_panel);
    m_recordButton = bigButton(tr("Record"), m_panel);
    m_recordButton->setIcon(MediaHelper::icon(u":/icons/record.svg"_s));
    m_stopButton = bigButton(tr("Stop"), m_panel);
    StyleHelper::SetButtonIcon(m_stopButton, u":/icons/stop.svg"_s, u"#FFF"_s);
}

void SpinbarController::layOutPanel()
{
    m_panel->setMinimumWidth(PanelWidth);
    m_panel->setContentsMargins(0, 0, 0, 0);
    StyleHelper::Instance()->setStyledBackground(m_panel, u"--n-idle-bg"_s, Qt::white);
    auto *layout = new QVBoxLayout(m_panel);
    layout->setContentsMargins(PanelMargin, PanelMargin, PanelMargin, PanelMargin);
    // The gaps stand below; with more of them the smallest window would not hold everything.
    layout->setSpacing(0);
    layout->addWidget(m_connectionBar);
    layout->addSpacing(RodentGap);
    layout->addWidget(m_rodentBox);
    layout->addSpacing(CalibrationGap);
    layout->addWidget(m_calibrationButton);
    layout->addSpacing(SectionGap);
    layout->addWidget(m_grid);
    layout->addSpacing(SectionGap);
    layout->addWidget(m_speed);
    layout->addStretch(Filling);
    layout->addWidget(m_recordButton);
    layout->addWidget(m_stopButton);
}

void SpinbarController::connectDevice()
{
    // Queued, so that the page never runs inside the device's own signals.
    for (const auto signal :
         {&BaseDevice::connected, &BaseDevice::disconnected, &BaseDevice::serialNumberFetched})
        connect(m_device, signal, this, &SpinbarController::updateConnection, Qt::QueuedConnection);
    connect(m_device, &CurlySpinbar::powerChanged, this, &SpinbarController::updateConnection,
            Qt::QueuedConnection);
    connect(m_device, &CurlySpinbar::modeChanged, this, &SpinbarController::updateMode);
    connect(m_rodentBox, &QComboBox::currentIndexChanged, this, [this](int index) {
        m_device->setRodentMode(index == 0 ? CurlySpinbarDevice::Rats : CurlySpinbarDevice::Mice);
    });
    connect(m_connectionBar, &ConnectionBar::firmwareUpdateRequested, this,
            &SpinbarController::updateFirmware);
}

void SpinbarController::connectSettings()
{
    connect(m_settings, &SpinbarSettings::changedCalibrationRats, this, &SpinbarController::updateMode);
    connect(m_settings, &SpinbarSettings::changedCalibrationMice, this, &SpinbarController::updateMode);
    connect(m_settings, &SpinbarSettings::changedShowIR, m_laneArea, &LaneArea::updateInfraRed);
}

void SpinbarController::connectRecording()
{
    connect(m_recordButton, &QPushButton::clicked, m_model, [this] { m_model->startRecord({}); });
    connect(m_stopButton, &QPushButton::clicked, m_model, &SpinbarModel::stopRecord);
    m_connections << connect(m_model, &SpinbarModel::recordStarted, this, [this] { showRecording(true); });
    m_connections << connect(m_model, &SpinbarModel::recordStopped, this, [this] { showRecording(false); });
    m_connections << connect(m_model, &SpinbarModel::recordDurationChanged, this, [this](double second) {
        m_stopButton->setText(TextHelper::TimeToText(second, false));
        refreshGraph();
    });
}

void SpinbarController::prepare()
{
    updateConnection();
    m_speed->apply();
    m_grid->apply();
    m_device->setRodentMode(m_settings->getRodentMode());
    updateMode();
    m_speed->updateDimension();
    m_stopButton->hide();
}

void SpinbarController::updateConnection()
{
    const bool connected = m_device->isConnected() && !m_device->serialNumber().isEmpty();
    const bool powered = connected && m_device->isPowered();
    setEnabled(connected);
    // A dialog that is open when the instrument goes has to stay usable, at least to be closed.
    for (QDialog *dialog : findChildren<QDialog *>())
        dialog->setEnabled(true);
    m_connectionBar->showState(connected, powered);
    m_notConnectedLabel->setVisible(!connected);
    m_laneArea->setVisible(connected);
    if (connected) {
        m_speed->setSliderEnabled(powered);
        m_grid->setSliderEnabled(powered);
    } else {
        m_speed->turnOff();
        m_grid->turnOff();
    }
}

void SpinbarController::updateMode()
{
    const CurlySpinbarDevice::RodentMode mode = m_device->rodentMode();
    const bool rats = mode == CurlySpinbarDevice::Rats;
    {
        const QSignalBlocker blocker(m_rodentBox);
        m_rodentBox->setCurrentIndex(rats ? 0 : 1);
    }
    m_laneArea->updateMode();
    // The text follows the new drum, and the command is repeated.
    m_speed->apply();
    m_settings->setRodentMode(mode);
    m_speed->updateDimension();
    m_calibrationButton->applyCalibration();
}

void SpinbarController::showRecording(bool recording)
{
    if (recording)
        m_stopButton->setText(u"00:00"_s);
    QPushButton *hidden = recording ? m_recordButton : m_stopButton;
    QPushButton *shown = recording ? m_stopButton : m_recordButton;
    const bool focused = hidden->hasFocus();
    hidden->hide();
    shown->show();
    // Otherwise the focus would go to the next control in order.
    if (focused)
        shown->setFocus();
    m_calibrationButton->setVisible(!recording);
    m_laneArea->clearRecord();
}

void SpinbarController::refreshGraph()
{
    if (SpinbarRecord *record = m_model->currentRecord())
        m_laneArea->showRecord(*record);
}
