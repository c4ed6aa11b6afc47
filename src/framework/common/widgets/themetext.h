#pragma once

#include <QMap>
#include <QString>

/// The text side of themes: files of variables and the style sheet that they are put into.
namespace ThemeText {

using Variables = QMap<QString, QString>;

/// Reads "key: value;" lines of a ":root { ... }" block. The blank behind the colon is what keeps a path such
/// as
/// ":/icons/check.svg" in one piece; a line that it doesn't split in exactly two is skipped.
Variables parse(QString text);

/// Replaces every variable's name by its value, in ascending order of names, until none is left. There is no
/// other syntax: a name that begins with another's is destroyed by the shorter one.
QString substituted(QString text, const Variables &variables);

} // namespace ThemeText
