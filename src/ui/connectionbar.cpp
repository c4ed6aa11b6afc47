#include "ui/connectionbar.h"

#include "ui/controlrow.h"

#include "device/curlyspinbar.h"
#include "framework/common/widgets/iconwidget.h"

#include <QCoreApplication>
#include <QCursor>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace {

constexpr int IconSpacing = 4;

} // namespace

ConnectionBar::ConnectionBar(CurlySpinbar *device, QWidget *parent)
    : QWidget(parent)
    , m_device(device)
{
    m_powerIcon = ControlRow::icon(
        u":/resources/images/power_green.svg"_s, {},
        QCoreApplication::translate("SpinbarController", "Спинбар и силовое питание подключено"), this);
    m_noDeviceIcon =
        ControlRow::icon(u":/resources/images/power_off_red.svg"_s, u"#999"_s,
                         QCoreApplication::translate("SpinbarController", "Спинбар не найден"), this);
    m_noPowerIcon = ControlRow::icon(
        u":/resources/images/power_off_red.svg"_s, {},
        QCoreApplication::translate("SpinbarController", "Спинбар найден, но силовое питание не подключено"),
        this);
    m_label = new QLabel(this);
    m_label->setContextMenuPolicy(Qt::CustomContextMenu);
    setLayout(ControlRow::create(IconSpacing, {m_powerIcon, m_noDeviceIcon, m_noPowerIcon, m_label}));
    connect(m_label, &QWidget::customContextMenuRequested, this, &ConnectionBar::showMenu);
}

void ConnectionBar::showState(bool connected, bool powered)
{
    static const QString notConnected = QCoreApplication::translate("Generic", "Not connected");
    m_label->setText(connected ? m_device->serialNumber() : notConnected);
    IconWidget *shown = !connected ? m_noDeviceIcon : powered ? m_powerIcon : m_noPowerIcon;
    for (IconWidget *icon : {m_powerIcon, m_noDeviceIcon, m_noPowerIcon})
        icon->setVisible(icon == shown);
    m_label->setToolTip(shown->toolTip());
    m_label->setStyleSheet(connected ? u"font-weight: bold"_s : QString());
}

void ConnectionBar::showMenu()
{
    QMenu menu(this);
    for (const QString &text : {"SN: "_L1 + m_device->serialNumber(), "Firmware: "_L1 + m_device->version()})
        menu.addAction(text)->setEnabled(false);
    constexpr Qt::KeyboardModifiers ControlAlt = Qt::ControlModifier | Qt::AltModifier;
    if (QGuiApplication::queryKeyboardModifiers().testFlags(ControlAlt)) {
        connect(menu.addAction(u"Update firmware"_s), &QAction::triggered, this,
                &ConnectionBar::firmwareUpdateRequested);
    }
    menu.exec(QCursor::pos());
}
