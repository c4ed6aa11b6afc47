#include "service/widgets/spinbarwriterwidget.h"

#include "device/serialportmanager.h"
#include "framework/common/widgets/apphelperdialogs.h"
#include "framework/common/widgets/globalconsolewidget.h"
#include "framework/common/widgets/stylehelper.h"

#include <QComboBox>
#include <QDate>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize ReloadIconSize{24, 24};
constexpr QSize ReloadButtonSize{32, 32};
constexpr QSize ConsoleMinimumSize{600, 220};
/// Parameters move in steps of this or less are shown with two decimals.
constexpr double FineStep = 0.01;
const QString Unread = u"?"_s;

enum Column { LabelColumn, FieldColumn, FirstButtonColumn, SecondButtonColumn, ColumnCount };

void addLabel(QGridLayout *layout, const QString &text, QWidget *buddy, const QString &tooltip = {})
{
    auto *label = new QLabel(text);
    label->setBuddy(buddy);
    label->setToolTip(tooltip);
    buddy->setToolTip(tooltip);
    layout->addWidget(label, layout->rowCount(), LabelColumn);
    layout->addWidget(buddy, layout->rowCount() - 1, FieldColumn);
}

/// Without a text, so that its lowest value is not taken for the instrument's.
void markUnread(QDoubleSpinBox *box)
{
    box->clear();
    box->setEnabled(false);
}

} // namespace

SpinbarWriterWidget::SpinbarWriterWidget(QWidget *parent, std::chrono::milliseconds listeningTime)
    : QWidget(parent)
    , m_writer(nullptr, listeningTime)
    , m_ports(SerialPortManager::instance().listedPorts())
{
    auto *layout = new QGridLayout(this);
    layout->setColumnStretch(FieldColumn, 1);
    createPortRow(layout);
    createIdentityRows(layout);
    createParameterRows(layout);
    auto *console = new GlobalConsoleWidget;
    console->setMinimumSize(ConsoleMinimumSize);
    console->setAccessibleName(tr("Log"));
    layout->addWidget(console, layout->rowCount(), 0, 1, ColumnCount);
    layout->setRowStretch(layout->rowCount() - 1, 1);
    connectWriter();
    fillPorts();
}

void SpinbarWriterWidget::createPortRow(QGridLayout *layout)
{
    m_portBox = new QComboBox;
    m_portBox->setAccessibleName(tr("Port"));
    m_portBox->setCursor(Qt::PointingHandCursor);
    QPushButton *reload = addButton({});
    StyleHelper::SetButtonIcon(reload, u":/icons/reload.svg"_s, u"#FFF"_s);
    reload->setIconSize(ReloadIconSize);
    reload->setFixedSize(ReloadButtonSize);
    reload->setAccessibleName(tr("Refill the list of ports"));
    QPushButton *read = addButton(tr("Read"));
    auto *row = new QHBoxLayout;
    row->addWidget(m_portBox, 1);
    row->addWidget(reload);
    layout->addLayout(row, 0, LabelColumn, 1, SecondButtonColumn);
    layout->addWidget(read, 0, SecondButtonColumn);
    connect(reload, &QPushButton::clicked, this, &SpinbarWriterWidget::fillPorts);
    connect(read, &QPushButton::clicked, this, &SpinbarWriterWidget::readAll);
}

void SpinbarWriterWidget::createIdentityRows(QGridLayout *layout)
{
    m_serialNumber = new QLineEdit;
    m_serialNumber->setPlaceholderText(u"B4YYMMBNN"_s);
    addLabel(
        layout, tr("SN:"), m_serialNumber,
        tr("Serial number in format 'B4YYMMBNN' where:\n'YY' - year code,\n'MM'-month code,\n'B' - batch "
           "code,\n'NN' - number in batch\n(e.g. 'B2403101' was built in March, 2024 first in first "
           "batch)"));
    QPushButton *generate = addButton(tr("Gen"));
    generate->setToolTip(tr("Generate serial number"));
    QPushButton *flashButton = addButton(tr("Flash"));
    layout->addWidget(generate, layout->rowCount() - 1, FirstButtonColumn);
    layout->addWidget(flashButton, layout->rowCount() - 1, SecondButtonColumn);
    m_version = new QLineEdit;
    m_version->setEnabled(false);
    addLabel(layout, tr("Version:"), m_version);
    connect(generate, &QPushButton::clicked, this, &SpinbarWriterWidget::generateSerialNumber);
    connect(flashButton, &QPushButton::clicked, this, &SpinbarWriterWidget::flash);
}

void SpinbarWriterWidget::createParameterRows(QGridLayout *layout)
{
    for (const DeviceParameter &parameter : DeviceWriter::parameters()) {
        auto *box = new QDoubleSpinBox;
        box->setDecimals(parameter.step <= FineStep ? 2 : 1);
        box->setRange(parameter.lowest, parameter.highest);
        box->setSingleStep(parameter.step);
        markUnread(box);
        addLabel(layout, tr(parameter.name) + ':'_L1, box, tr(parameter.tooltip));
        QPushButton *write = addButton(u">"_s);
        write->setAccessibleName(tr("Write %1").arg(tr(parameter.name)));
        // What was not read is not the instrument's, and must not be written to it.
        write->setEnabled(false);
        layout->addWidget(write, layout->rowCount() - 1, FirstButtonColumn);
        connect(write, &QPushButton::clicked, this,
                [this, parameter, box] { expect(m_writer.writeParameter(port(), parameter, box->value())); });
        m_parameters.insert(QLatin1StringView(parameter.key), box);
        m_writeButtons.insert(QLatin1StringView(parameter.key), write);
    }
}

QPushButton *SpinbarWriterWidget::addButton(const QString &text)
{
    auto *button = new QPushButton(text);
    button->setCursor(Qt::PointingHandCursor);
    // Enter in a field would press it.
    button->setAutoDefault(false);
    return button;
}

void SpinbarWriterWidget::connectWriter()
{
    connect(&m_writer, &DeviceWriter::serialNumberRead, m_serialNumber, &QLineEdit::setText);
    connect(&m_writer, &DeviceWriter::versionRead, m_version, &QLineEdit::setText);
    connect(&m_writer, &DeviceWriter::parameterRead, this, &SpinbarWriterWidget::showParameter);
}

void SpinbarWriterWidget::fillPorts()
{
    m_portBox->clear();
    m_portBox->addItems(DeviceWriter::choices(m_ports));
}

QString SpinbarWriterWidget::port() const
{
    return DeviceWriter::portName(m_portBox->currentText());
}

void SpinbarWriterWidget::readAll()
{
    m_serialNumber->setText(Unread);
    m_version->setText(Unread);
    for (QDoubleSpinBox *box : std::as_const(m_parameters))
        markUnread(box);
    for (QPushButton *button : std::as_const(m_writeButtons))
        button->setEnabled(false);
    expect(m_writer.readAll(port()));
}

void SpinbarWriterWidget::flash()
{
    const QString serialNumber = m_serialNumber->text();
    if (!serialNumber.startsWith('B'_L1)
        && !AppHelper::confirmDialog({}, tr("Serial number should start with 'B', continue?"),
                                     QMessageBox::Question))
        return;
    expect(m_writer.writeSerialNumber(port(), serialNumber));
}

void SpinbarWriterWidget::generateSerialNumber()
{
    const QDate today = QDate::currentDate();
    const QString serialNumber = DeviceWriter::newSerialNumber(today);
    const auto line = [](const QString &part, const QString &meaning) { return part + "\t- "_L1 + meaning; };
    const QString text = QStringList{tr("Serial number is generated as follows") + ':'_L1,
                                     line(u"B4"_s, tr("for Spinbar, version 4")),
                                     line(today.toString(u"yy"_s), tr("for current year")),
                                     line(today.toString(u"MM"_s), tr("for current month")),
                                     line(u"1"_s, tr("for batch number")),
                                     line(u"01"_s, tr("for the number of device in the batch")),
                                     {},
                                     serialNumber}
                             .join(u'\n');
    AppHelper::warningMessage(text, {}, QMessageBox::Information);
    m_serialNumber->setText(serialNumber);
}

void SpinbarWriterWidget::showParameter(const QString &key, double value)
{
    if (QDoubleSpinBox *box = m_parameters.value(key)) {
        box->setEnabled(true);
        box->setValue(value);
        m_writeButtons.value(key)->setEnabled(true);
    }
}

void SpinbarWriterWidget::expect(bool accepted)
{
    if (!accepted)
        AppHelper::warningMessage(tr("Waiting for previous transaction"), {}, QMessageBox::Warning);
}
