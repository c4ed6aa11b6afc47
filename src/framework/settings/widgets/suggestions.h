#pragma once

#include <QList>
#include <QString>

/// Values that a number's editor proposes.
namespace Suggestions {

/// From a list such as "0.5, 1, 2"; what is no number is left out.
QList<double> parse(const QString &text);

/// The value that lies \a steps behind the nearest one to \a current in the order of \a suggestions, or the
/// end of the list. The list must not be empty.
double stepped(const QList<double> &suggestions, double current, int steps);

} // namespace Suggestions
