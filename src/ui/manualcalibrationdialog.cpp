#include "ui/manualcalibrationdialog.h"

#include "core/spinbarsettings.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int RatLanes = 4;
constexpr int MouseLanes = 7;
constexpr int DefaultThreshold = 30;
// One less than the settings accept: it makes the calibration invalid.
constexpr int LeastValue = 0;
constexpr int GreatestValue = 49;
constexpr int BoxStretch = 10;
constexpr int Filling = 100;
constexpr int RowGap = 20;
constexpr int ButtonWidth = 80;

QList<int> valuesFromText(const QString &thresholds, int lanes)
{
    QList<int> values;
    for (const QString &part : thresholds.split(u';', Qt::SkipEmptyParts))
        values += part.toInt();
    while (values.size() < lanes)
        values += DefaultThreshold;
    return values.first(lanes);
}

QString textFromBoxes(const QList<QSpinBox *> &boxes)
{
    QStringList texts;
    for (const QSpinBox *box : boxes)
        texts += QString::number(box->value());
    return texts.join(u';');
}

} // namespace

ManualCalibrationDialog::ManualCalibrationDialog(SpinbarSettings *settings, QWidget *parent)
    : QDialog(parent)
    , m_settings(settings)
{
    setWindowTitle(QCoreApplication::translate("SpinbarController", "Manual calibration"));
    auto *layout = new QVBoxLayout(this);
    m_ratBoxes =
        addRow(QCoreApplication::translate("RodentMode", "Rats"), settings->getCalibrationRats(), RatLanes);
    m_mouseBoxes =
        addRow(QCoreApplication::translate("RodentMode", "Mice"), settings->getCalibrationMice(), MouseLanes);
    layout->addLayout(createButtons());
}

QList<QSpinBox *> ManualCalibrationDialog::addRow(const QString &title, const QString &thresholds, int lanes)
{
    auto *column = static_cast<QVBoxLayout *>(layout());
    column->addWidget(new QLabel(title));
    auto *row = new QHBoxLayout;
    QList<QSpinBox *> boxes;
    for (const int value : valuesFromText(thresholds, lanes)) {
        auto *box = new QSpinBox;
        box->setRange(LeastValue, GreatestValue);
        box->setValue(value);
        box->setAccessibleName(u"%1 %2"_s.arg(title).arg(boxes.size() + 1));
        row->addWidget(box, BoxStretch);
        boxes += box;
    }
    // Both drums have as many columns, so that their lanes stand below each other.
    for (int lane = lanes; lane < MouseLanes; ++lane)
        row->addWidget(new QLabel, BoxStretch);
    column->addLayout(row);
    column->addSpacing(RowGap);
    return boxes;
}

QLayout *ManualCalibrationDialog::createButtons()
{
    auto *save = new QPushButton(QCoreApplication::translate("Generic", "Save"));
    auto *cancel = new QPushButton(QCoreApplication::translate("Generic", "Cancel"));
    for (QPushButton *button : {save, cancel}) {
        button->setMinimumWidth(ButtonWidth);
        button->setCursor(Qt::PointingHandCursor);
    }
    connect(save, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto *row = new QHBoxLayout;
    row->addWidget(save);
    row->addWidget(cancel, Filling, Qt::AlignRight);
    return row;
}

void ManualCalibrationDialog::accept()
{
    m_settings->setCalibrationRats(textFromBoxes(m_ratBoxes));
    m_settings->setCalibrationMice(textFromBoxes(m_mouseBoxes));
    QDialog::accept();
}
