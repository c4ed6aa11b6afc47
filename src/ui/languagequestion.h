#pragma once

#include <QString>
#include <QStringList>

/// The question whether to restart for another language, put in the running language and in the chosen one.
struct LanguageQuestion
{
    QString title;
    QString text;
    /// OK, Not now, Cancel.
    QStringList buttons;

    static LanguageQuestion forLanguage(const QString &language);
};
