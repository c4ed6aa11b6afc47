#pragma once

#include <QString>

/// The conditions under which a row of a form is shown.
namespace VisibilityRule {

/// Compares \a value with a condition such as "A", "!A", "A|B" or "!A&&!B". With a "|" behind its first
/// character the whole condition is an alternative, whatever else stands in it.
bool holds(const QString &value, const QString &condition);

} // namespace VisibilityRule
