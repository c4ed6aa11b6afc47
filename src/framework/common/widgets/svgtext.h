#pragma once

#include <QImage>
#include <QSize>
#include <QString>

/// Recolouring of vector drawings by editing their text, and their rendering. The drawings are taken for
/// hostile: what is too large, too deep, or defines entities is not drawn.
namespace SvgText {

/// The text of the file, empty if it can't be read or is larger than any drawing of ours could be.
QString read(const QString &path);

/// Puts fill="\a color" into the opening tag of "svg", over a fill that stands there, and replaces all
/// occurrences of \a colorToReplace, unless empty, in the whole text.
QString recolored(QString text, const QString &color, const QString &colorToReplace);

/// The older and simpler rule: only a root that begins with "svg fill=" takes the colour.
QString withRootFill(QString text, const QString &color);

/// The drawing on transparency, in \a size if valid, otherwise in its own; null if it is none.
QImage rendered(const QString &text, QSize size = {});

} // namespace SvgText
