#pragma once

#include <QString>
#include <QStringList>

/// \file
/// The language in which a program comes up. The settings object translates its captions when it is built, so
/// the language has to be known before: it is found in the settings file by a plain text search.

/// The name between "<Language>" and the next "</" of \a settings if it is one that LanguageContext has,
/// otherwise empty. A text that begins with the tag yields nothing.
QString languageFromSettingsText(const QString &settings);

/// The language of \a settingsFile, else that of the system. For LanguageContext::setLanguage.
QString startLanguage(const QString &settingsFile);

/// The text of a settings file as far as the language is looked for in it; empty if it can't be read.
QString settingsTextForLanguage(const QString &settingsFile);

/// What stands in for \a language: itself if it is available, else the system's, else "en-EN", else the first
/// available, else nothing.
QString nearestLanguage(const QString &language, const QString &systemLanguage, const QStringList &available);
