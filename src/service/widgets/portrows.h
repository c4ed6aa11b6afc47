#pragma once

#include "device/serialports.h"

#include <QList>
#include <QMap>
#include <QWidget>

class QCheckBox;
class QGridLayout;

/// The serial ports, each with a check box. Ports with a known firmware are ticked; a single one whose name
/// is led by "-" in the table is the only one shown, and stays ticked.
class PortRows : public QWidget
{
    Q_OBJECT

public:
    using KnownPorts = QMap<QString, QString>;

    PortRows(const QList<PortInfo> &ports, const KnownPorts &known, QWidget *parent = nullptr);

    /// From top to bottom.
    QList<PortInfo> tickedPorts() const;

private:
    void addRow(QGridLayout *grid, const PortInfo &port, const KnownPorts &known);

    QList<PortInfo> m_ports;
    QList<QCheckBox *> m_boxes;
};
