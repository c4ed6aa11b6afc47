#pragma once

#include <QList>

class IconWidget;
class QHBoxLayout;
class QPushButton;
class QString;
class QWidget;

/// The pieces that the device page's control panel is made of.
namespace ControlRow {

/// Widgets side by side, each as high as a row at least. A null entry takes up what is left; without one that
/// is an empty place at the end.
QHBoxLayout *create(int spacing, const QList<QWidget *> &widgets);
/// The first widget takes up what is left.
QHBoxLayout *createFilled(int spacing, const QList<QWidget *> &widgets);

/// A drawing with a tooltip; an empty \a color means its own colours.
IconWidget *icon(const QString &path, const QString &color, const QString &tooltip, QWidget *parent);

/// A round button for switching something off. The tooltip is its accessible name: there are several.
QPushButton *offButton(const QString &color, const QString &tooltip, QWidget *parent);

} // namespace ControlRow
