#pragma once

#include <QString>
#include <QWidget>

class CurlySpinbar;
class IconWidget;
class QLabel;

/// What is known of the link and the power supply: one of three icons and the serial number, whose context
/// menu tells more.
class ConnectionBar : public QWidget
{
    Q_OBJECT

public:
    /// \a device is not owned.
    explicit ConnectionBar(CurlySpinbar *device, QWidget *parent = nullptr);

    void showState(bool connected, bool powered);

signals:
    void firmwareUpdateRequested();

private:
    void showMenu();

    CurlySpinbar *m_device = nullptr;
    IconWidget *m_powerIcon = nullptr;
    IconWidget *m_noDeviceIcon = nullptr;
    IconWidget *m_noPowerIcon = nullptr;
    QLabel *m_label = nullptr;
};
