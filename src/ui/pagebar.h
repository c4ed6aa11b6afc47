#pragma once

#include <QList>

class QPushButton;
class QString;
class QWidget;

/// The bars at the foot of the records page and their buttons.
namespace PageBar {

/// Fills the empty \a page with \a main and a bar of \a widgets below it. A null entry is a stretch.
void fill(QWidget *page, QWidget *main, const QList<QWidget *> &widgets);

QPushButton *exportButton(const QString &text, const QString &tooltip);
/// With an icon only; the tooltip is its accessible name.
QPushButton *toolButton(const QString &iconPath, const QString &tooltip);

} // namespace PageBar
