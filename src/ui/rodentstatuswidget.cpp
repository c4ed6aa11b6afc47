#include "ui/rodentstatuswidget.h"

#include "core/spinbarmodel.h"
#include "core/spinbarrecord.h"
#include "core/spinbarsettings.h"
#include "detection/spinbardetection.h"
#include "framework/common/texthelper.h"
#include "framework/common/widgets/iconwidget.h"

#include <QCoreApplication>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize RatIconSize{120, 120};
constexpr QSize MouseIconSize{80, 80};
constexpr double MotorThousandthsPerDrumRotation = 9487.179487179486;
constexpr double MillisecondsPerSecond = 1000.0;
constexpr int Filling = 100;

QString withUnit(double value, int decimals, const QString &unit)
{
    return QString::number(value, 'f', decimals) + ' '_L1 + unit;
}

/// The way run, in the unit that goes with the operator's unit of speed.
QString distanceText(qint64 motorThousandths, const SpinbarModel &model)
{
    static const QString metres = QCoreApplication::translate("Generic", "m");
    static const QString centimetres = QCoreApplication::translate("Generic", "cm");
    static const QString rotations = QCoreApplication::translate("Generic", "rot.");
    if (motorThousandths <= 0 || !model.device())
        return {};
    const double drumRotations = double(motorThousandths) / MotorThousandthsPerDrumRotation;
    const double circumference = model.device()->rodentMode() == CurlySpinbarDevice::Mice
                                     ? SpinbarRecord::MouseDrumCircumference
                                     : SpinbarRecord::RatDrumCircumference;
    switch (model.settings()->getRotationDimension()) {
    case CurlySpinbar::CentimetersPerSecond:
        return withUnit(drumRotations * 100 * circumference, 1, centimetres);
    case CurlySpinbar::MetersPerSecond:
    case CurlySpinbar::KilometersPerHour:
        return withUnit(drumRotations * circumference, 2, metres);
    case CurlySpinbar::RotationsPerSecond:
    case CurlySpinbar::RotationsPerMinute:
        break;
    }
    return withUnit(drumRotations, 2, rotations);
}

} // namespace

RodentStatusWidget::RodentStatusWidget(SpinbarDetection *detection, QWidget *parent)
    : QWidget(parent)
    , m_laneIndex(detection->index())
{
    createWidgets(detection->isRat());
    m_connections << connect(
        detection, &SpinbarDetection::calcsChanged, this, [this, detection] { showLane(*detection); },
        Qt::QueuedConnection);
}

void RodentStatusWidget::createWidgets(bool rat)
{
    const QSize size = rat ? RatIconSize : MouseIconSize;
    m_rodentIcon = new IconWidget(rat ? u":/resources/images/rat.png"_s : u":/resources/images/mouse.png"_s,
                                  {}, size, {}, this);
    m_noRodentIcon = new IconWidget(u":/resources/images/no-rodent.png"_s, {}, size, {}, this);
    m_infraRedLabel = new QLabel(this);
    m_timeLabel = new QLabel(this);
    m_distanceLabel = new QLabel(this);
    m_rodentIcon->hide();

    setContentsMargins(0, 0, 0, 0);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    constexpr Qt::Alignment Low = Qt::AlignHCenter | Qt::AlignVCenter | Qt::AlignBottom;
    constexpr Qt::Alignment High = Qt::AlignHCenter | Qt::AlignVCenter | Qt::AlignTop;
    layout->addWidget(m_rodentIcon, Filling, Low);
    layout->addWidget(m_noRodentIcon, Filling, Low);
    layout->addWidget(m_infraRedLabel, 0, Qt::AlignCenter);
    layout->addWidget(m_timeLabel, 0, Qt::AlignCenter);
    layout->addWidget(m_distanceLabel, Filling, High);
}

void RodentStatusWidget::showLane(const SpinbarDetection &detection)
{
    m_rodentIcon->setVisible(detection.isPresent());
    m_noRodentIcon->setVisible(!detection.isPresent());
    m_infraRedLabel->setText(QString::number(detection.lastValue()) + '/'_L1
                             + QString::number(detection.threshold()));
    m_timeLabel->setText(
        detection.elapsed() < 1
            ? QString()
            : TextHelper::TimeToText(double(detection.elapsed()) / MillisecondsPerSecond, false));
    m_distanceLabel->setText(distanceText(detection.rotations(), *SpinbarModel::instance()));
}

void RodentStatusWidget::setInfraRedVisible(bool visible)
{
    m_infraRedLabel->setVisible(visible);
}
