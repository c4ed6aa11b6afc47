#pragma once

#include "device/serialports.h"
#include "service/devicewriter.h"

#include <QMap>
#include <QWidget>

class QComboBox;
class QDoubleSpinBox;
class QGridLayout;
class QLineEdit;
class QPushButton;

/// The maker's tool: shows an instrument's serial number, version and motor parameters, and writes them. The
/// link has to be off while it is there.
class SpinbarWriterWidget : public QWidget
{
    Q_OBJECT

public:
    explicit SpinbarWriterWidget(QWidget *parent = nullptr,
                                 std::chrono::milliseconds listeningTime = DeviceWriter::ListeningTime);

private:
    void createPortRow(QGridLayout *layout);
    void createIdentityRows(QGridLayout *layout);
    void createParameterRows(QGridLayout *layout);
    QPushButton *addButton(const QString &text);
    void connectWriter();

    void fillPorts();
    QString port() const;
    void readAll();
    void flash();
    void generateSerialNumber();
    void showParameter(const QString &key, double value);
    /// Says so if the transaction was not \a accepted.
    void expect(bool accepted);

    DeviceWriter m_writer;
    /// As they were at the beginning.
    QList<PortInfo> m_ports;
    QComboBox *m_portBox = nullptr;
    QLineEdit *m_serialNumber = nullptr;
    QLineEdit *m_version = nullptr;
    /// By the key in the instrument's answer.
    QMap<QString, QDoubleSpinBox *> m_parameters;
    QMap<QString, QPushButton *> m_writeButtons;
};
