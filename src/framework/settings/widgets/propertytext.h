#pragma once

#include <QString>

/// Texts of a declaration in the running language.
namespace PropertyText {

/// The translation in the shared context.
QString translated(const QString &source);

/// Of a unit: text behind "!-" stands as it is, and a leading blank is no part of what is looked up.
QString suffixOrPrefix(const QString &source);

} // namespace PropertyText
