#include "framework/common/widgets/npushbutton.h"

#include "framework/common/widgets/cursorhelper.h"

#include <QEvent>
#include <QShowEvent>

NPushButton::NPushButton(QWidget *parent)
    : NPushButton(QIcon(), QString(), parent)
{}

NPushButton::NPushButton(const QString &text, QWidget *parent)
    : NPushButton(QIcon(), text, parent)
{}

NPushButton::NPushButton(const QIcon &icon, const QString &text, QWidget *parent)
    : QPushButton(icon, text, parent)
{
    installEventFilter(this);
    CursorHelper::setCursor(this, Qt::PointingHandCursor);
}

bool NPushButton::eventFilter(QObject *, QEvent *event)
{
    // A button that is disabled under the cursor stays hovered until it is entered or left again.
    if (isEnabled() && event->type() == QEvent::Enter)
        setHovered(true);
    else if (isEnabled() && event->type() == QEvent::Leave)
        setHovered(false);
    return false;
}

void NPushButton::setHovered(bool hovered)
{
    m_hovered = hovered;
    if (hovered)
        emit mouseHover();
    else
        emit mouseLeft();
    emit mouseHoverChanged(hovered);
}

void NPushButton::enable()
{
    setEnabledState(true);
}

void NPushButton::disable()
{
    setEnabledState(false);
}

void NPushButton::setEnabledState(bool isEnabled)
{
    if (isEnabled == QPushButton::isEnabled())
        return;
    setEnabled(isEnabled);
    if (isEnabled)
        emit enabled();
    else
        emit disabled();
    emit enabledStateChanged(isEnabled);
}

void NPushButton::mouseDoubleClickEvent(QMouseEvent *)
{
    emit doubleClicked();
}

void NPushButton::showEvent(QShowEvent *event)
{
    QPushButton::showEvent(event);
    emit onShown();
    emit onVisibleChanged(true);
}

void NPushButton::hideEvent(QHideEvent *event)
{
    QPushButton::hideEvent(event);
    emit onHidden();
    emit onVisibleChanged(false);
}
