#include "framework/common/widgets/systemscheme.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPalette>
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
#include <QStyleHints>
#endif

SystemScheme::SystemScheme(QObject *parent)
    : QObject(parent)
    , m_dark(isDark())
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    connect(QGuiApplication::styleHints(), &QStyleHints::colorSchemeChanged, this, &SystemScheme::compare);
#endif
    qGuiApp->installEventFilter(this);
}

bool SystemScheme::isDark()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    // Not every platform tells.
    const Qt::ColorScheme scheme = QGuiApplication::styleHints()->colorScheme();
    if (scheme != Qt::ColorScheme::Unknown)
        return scheme == Qt::ColorScheme::Dark;
#endif
    return isDarkPalette(QGuiApplication::palette());
}

bool SystemScheme::isDarkPalette(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

bool SystemScheme::eventFilter(QObject *watched, QEvent *event)
{
    // The filter sees the events of every object; the windows are told of the palette too.
    if (watched == qGuiApp && event->type() == QEvent::ApplicationPaletteChange)
        compare();
    return QObject::eventFilter(watched, event);
}

void SystemScheme::compare()
{
    if (const bool dark = isDark(); dark != m_dark) {
        m_dark = dark;
        emit changed(dark);
    }
}
