#include "framework/common/widgets/cursorhelper.h"

#include <QCursor>
#include <QHash>
#include <QPixmap>
#include <QWidget>

namespace {

struct Cursors
{
    bool customEnabled = false;
    QHash<Qt::CursorShape, QCursor> installed;
    QHash<QWidget *, Qt::CursorShape> assigned;
};

// Never destroyed: cursors must not outlive the application object.
Cursors &cursors()
{
    static auto *state = new Cursors;
    return *state;
}

void apply(QWidget *widget, Qt::CursorShape shape)
{
    const Cursors &state = cursors();
    widget->setCursor(state.customEnabled ? state.installed.value(shape, QCursor(shape)) : QCursor(shape));
}

} // namespace

void CursorHelper::setCursor(QWidget *widget, Qt::CursorShape shape)
{
    if (!widget)
        return;
    apply(widget, shape);
    auto &assigned = cursors().assigned;
    if (!assigned.contains(widget))
        QObject::connect(widget, &QObject::destroyed, widget,
                         [widget] { cursors().assigned.remove(widget); });
    assigned.insert(widget, shape);
}

void CursorHelper::InstallCursor(Qt::CursorShape shape, const QPixmap &pixmap, int hotX, int hotY)
{
    cursors().installed.insert(shape, QCursor(pixmap, hotX, hotY));
}

void CursorHelper::setIsCustomCursorEnabled(bool enabled)
{
    cursors().customEnabled = enabled;
}

void CursorHelper::reassign()
{
    const auto &assigned = cursors().assigned;
    for (auto it = assigned.cbegin(); it != assigned.cend(); ++it)
        apply(it.key(), it.value());
}
