#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QSize>
#include <QString>
#include <QStringList>

class NPushButton;
class QFrame;
class QGridLayout;
class QLabel;
class QLayout;
class QLayoutItem;
class QPushButton;
class QWidget;

/// Common small widgets and layout work. What is generated has no parent unless one is given.
namespace UIHelper {

/// Through the palette; a disabled widget, or one in a window without focus, keeps the colour.
void ChangeBackground(QWidget *widget, const QColor &color);
void ChangeBorders(QFrame *frame, int width, const QColor &color);

/// Takes all items out, those of inner layouts too, and gives up their widgets; then the layout itself if
/// \a deleteLayout. The widgets vanish at once and are destroyed when control returns to the event loop, so
/// that it may be called from a handler of one of them.
void ClearLayout(QLayout *layout, bool deleteLayout);
void Delete(QWidget *widget);
void Delete(QLayoutItem *item);

/// Replaces the layout of \a host, with what it held, by a grid with just \a child.
void InsertToWidget(QWidget *host, QWidget *child, int margin, Qt::Alignment alignment);

/// \a margin on all sides; \a vertical and \a horizontal are the spacings.
void SetGridMargins(QGridLayout *grid, int margin, int vertical, int horizontal);

/// \a fontSize in pixels; 0 or less and an empty \a family keep those of the theme.
QLabel *GenerateLabel(const QString &text, int fontSize, const QColor &color, bool bold,
                      const QString &family = {});
QLabel *GenerateBoldLabel(const QString &text, int fontSize, const QColor &color, const QString &family = {});

/// For the style sheet's object names.
QLabel *GenerateLabelWithName(const QString &text, const QString &objectName, QWidget *parent = nullptr);

QLabel *GenerateIconWidget(const QIcon &icon, int width, int height);
QLabel *GenerateIconWidget(const QIcon &icon, const QSize &size);

/// Opens \a url when clicked. An empty caption or tooltip is the url.
QPushButton *GenerateLinkButton(const QString &url, const QString &caption, const QString &tooltip,
                                const QString &objectName);

/// Flat, with text and icon.
QPushButton *GenerateSvgButton(const QString &text, const QString &path, const QSize &iconSize,
                               const QSize &fixedSize, const QString &style);
/// Not flat, with an icon only.
QPushButton *GenerateSvgButton(const QString &path, const QSize &iconSize, const QSize &fixedSize,
                               const QString &style);
/// Flat, with an icon only, drawn in \a color unless that is empty.
QPushButton *FixedSizeSvg(const QString &path, const QSize &size, const QString &color = {});

/// Has an icon for rest, hover and the disabled state, all three of which come from \a path. The three last
/// arguments are accepted and have no effect.
NPushButton *GenerateSmartSvgButton(const QString &path, const QSize &fixedSize, const QSize &iconSize,
                                    const QString &, const QString &, const QString &);

/// The drawing in \a color, see SvgText::withRootFill, in \a size if valid, otherwise in its own.
QPixmap PixmapFromSvg(const QString &path, const QString &color = {}, const QSize &size = {});
QIcon IconFromSvg(const QString &path, const QString &color = {}, const QSize &size = {});
QPixmap SvgToPixmap(const QString &path, const QSize &size);

/// The first path that exists, or empty.
QString findValidResource(const QStringList &paths);

} // namespace UIHelper
