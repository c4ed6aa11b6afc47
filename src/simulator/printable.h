#pragma once

#include <QString>

/// For one line of a report: every control character but those in \a kept, and every one that could not be
/// decoded, is a question mark.
inline QString printable(QString text, QStringView kept = {})
{
    for (QChar &c : text) {
        if ((c.category() == QChar::Other_Control && !kept.contains(c)) || c == QChar::ReplacementCharacter)
            c = u'?';
    }
    return text;
}
