#include "framework/common/widgets/themetext.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

// Values that name other variables can multiply; a style sheet of ours has a few ten thousand characters.
constexpr qsizetype MaxSheetLength = 4LL * 1024 * 1024;
// A value can make its name anew together with its neighbours, and grow the text at each pass.
constexpr int MaxPasses = 100;

void substitute(QString &text, const QString &name, const QString &value)
{
    // A value that holds its own name would never come to an end.
    const bool once = value.contains(name);
    for (int pass = 0; pass < MaxPasses && text.contains(name); ++pass) {
        const qsizetype growth = qMax(value.size() - name.size(), 0);
        if (text.size() + text.count(name) * growth > MaxSheetLength)
            return;
        text.replace(name, value);
        if (once)
            return;
    }
}

} // namespace

ThemeText::Variables ThemeText::parse(QString text)
{
    Variables variables;
    text.remove(u":root {"_s).remove('}'_L1);
    const QStringList lines = text.split('\n'_L1);
    for (const QString &raw : lines) {
        QString line = raw.trimmed();
        if (line.endsWith(';'_L1))
            line.chop(1);
        const QStringList parts = line.split(u": "_s);
        if (parts.size() == 2)
            variables.insert(parts.at(0).trimmed(), parts.at(1).trimmed());
    }
    return variables;
}

QString ThemeText::substituted(QString text, const Variables &variables)
{
    for (auto it = variables.cbegin(); it != variables.cend(); ++it) {
        if (!it.key().isEmpty())
            substitute(text, it.key(), it.value());
    }
    return text;
}
