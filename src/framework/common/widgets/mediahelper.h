#pragma once

#include <QIcon>
#include <QImage>
#include <QString>

/// Icons of the resources, as they are and recoloured. Icons are kept for the life of the process by colour
/// and path, so that a repeated request draws nothing. Paths may begin with ":/" or "qrc:/". Main thread
/// only.
namespace MediaHelper {

/// ":/" in the place of a leading "qrc:/".
QString resourcePath(const QString &path);

QIcon icon(const QString &path);

/// \a colorToReplace is no part of the key: the first one asked for with a colour and path stays.
QIcon iconColored(const QString &path, const QString &color, const QString &colorToReplace);

/// The icon with \a text over it in the same colour; sizes and paddings are percentages of the picture.
QIcon iconColoredWithText(const QString &path, const QString &color, const QString &text,
                          double fontSizePercent, bool bold, Qt::Alignment alignment,
                          double horizontalPaddingPercent, double verticalPaddingPercent,
                          const QString &colorToReplace);

/// Null if there is no drawing at \a path.
QImage svgColored(const QString &path, const QString &color, const QString &colorToReplace);

/// The text of the drawing, see SvgText::recolored; empty if the file can't be opened.
QString recolorSVG(const QString &path, const QString &color, const QString &colorToReplace);

} // namespace MediaHelper
