#pragma once

#include <QtCore/qnamespace.h>

class QPixmap;
class QWidget;

/// Cursors by shape, which pictures of our own may stand in for.
namespace CursorHelper {

/// Remembers the widget and its shape until the widget is destroyed. Null is ignored.
void setCursor(QWidget *widget, Qt::CursorShape shape);

/// The picture for a shape, with its hot spot; used while custom cursors are on.
void InstallCursor(Qt::CursorShape shape, const QPixmap &pixmap, int hotX, int hotY);
void setIsCustomCursorEnabled(bool enabled);

/// Applies the cursors of all widgets remembered anew.
void reassign();

} // namespace CursorHelper
