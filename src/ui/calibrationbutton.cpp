#include "ui/calibrationbutton.h"

#include "ui/manualcalibrationdialog.h"

#include "core/calibrationrun.h"
#include "core/sensorcalibration.h"
#include "core/spinbarsettings.h"
#include "detection/spinbardetection.h"
#include "device/curlyspinbar.h"
#include "framework/common/widgets/apphelperdialogs.h"
#include "framework/common/widgets/mediahelper.h"

#include <QCoreApplication>
#include <QDialog>
#include <QLabel>
#include <QLoggingCategory>
#include <QMenu>
#include <QTimer>
#include <QVBoxLayout>

#include <chrono>
#include <memory>

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(calibrationLog, "spinbar.calibration")

namespace {

constexpr std::chrono::seconds CalibrationTime{10};
// The device cuts it to the top speed.
constexpr double AnyTopSpeed = 94.87179487179488;

QString translated(const char *source)
{
    return QCoreApplication::translate("SpinbarController", source);
}

QIcon warningIcon()
{
    static const QIcon icon =
        MediaHelper::iconColored(u":/resources/images/warning.svg"_s, u"#ff8400"_s, u"#000"_s);
    return icon;
}

} // namespace

CalibrationButton::CalibrationButton(CurlySpinbar *device, SpinbarSettings *settings, QWidget *dialogParent,
                                     QWidget *parent)
    : QPushButton(translated(QT_TRANSLATE_NOOP("SpinbarController", "Калибровка датчиков")), parent)
    , m_device(device)
    , m_settings(settings)
    , m_dialogParent(dialogParent)
{
    setCursor(Qt::PointingHandCursor);
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, &QPushButton::clicked, this, &CalibrationButton::runWizard);
    connect(this, &QWidget::customContextMenuRequested, this, &CalibrationButton::showMenu);
}

void CalibrationButton::applyCalibration()
{
    setIcon(SensorCalibration::apply(*m_settings, *m_device) ? QIcon() : warningIcon());
}

void CalibrationButton::showMenu(QPoint position)
{
    QMenu menu(this);
    connect(menu.addAction(translated(QT_TRANSLATE_NOOP("SpinbarController", "Manual calibration"))),
            &QAction::triggered, this,
            [this] { ManualCalibrationDialog(m_settings, m_dialogParent).exec(); });
    menu.exec(mapToGlobal(position));
}

QString CalibrationButton::instructions() const
{
    QStringList steps;
    if (!m_device->isPowered())
        steps += translated(QT_TRANSLATE_NOOP("SpinbarController", "Включите силовое питание"));
    steps += m_device->rodentMode() == CurlySpinbarDevice::Mice
                 ? translated(QT_TRANSLATE_NOOP("SpinbarController", "Поместите барабан для мышей"))
                 : translated(QT_TRANSLATE_NOOP("SpinbarController", "Поместите барабан для крыс"));
    steps += translated(QT_TRANSLATE_NOOP("SpinbarController", "Не помещайте грызунов на барабан"));
    steps += translated(
        QT_TRANSLATE_NOOP("SpinbarController", "Нажмите \"Начать\" и дождитесь окончания калибровки"));
    for (qsizetype step = 0; step < steps.size(); ++step)
        steps[step].prepend(QString::number(step + 1) + ". "_L1);
    return steps.join(u'\n');
}

void CalibrationButton::runWizard()
{
    // The captions of the two buttons are Russian in every language.
    if (AppHelper::confirmDialog(translated(QT_TRANSLATE_NOOP("SpinbarController", "Калибровка")),
                                 instructions(), QMessageBox::Information, {u"Начать"_s, u"Отмена"_s}))
        runCalibration();
}

void CalibrationButton::runCalibration()
{
    qCDebug(calibrationLog) << "Calib";
    auto *progress = new QDialog(m_dialogParent);
    (new QVBoxLayout(progress))
        ->addWidget(new QLabel(translated(QT_TRANSLATE_NOOP("SpinbarController", "Калибровка в процессе"))));
    const bool mice = m_device->rodentMode() == CurlySpinbarDevice::Mice;
    const auto run = std::make_shared<CalibrationRun>(int(m_device->detectors().size()));
    const auto collecting = connect(m_device, mice ? &CurlySpinbar::miceIR : &CurlySpinbar::ratsIR, this,
                                    [run](const QList<int> &values) {
                                        qCDebug(calibrationLog) << "CAL" << values;
                                        run->collect(values);
                                        qCDebug(calibrationLog) << "CAL2" << run->lowestReadings();
                                    });
    m_device->setMotorSpeed(AnyTopSpeed);
    QTimer::singleShot(CalibrationTime, this, [this, progress, mice, run, collecting] {
        m_device->setMotorSpeed(0.0);
        disconnect(collecting);
        progress->close();
        // For the drum that the run began with, whichever is in use now.
        if (mice)
            m_settings->setCalibrationMice(run->thresholds());
        else
            m_settings->setCalibrationRats(run->thresholds());
    });
    progress->show();
}
