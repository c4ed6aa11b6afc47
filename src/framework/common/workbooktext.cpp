#include "framework/common/workbooktext.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype MaxCellUnits = 32767;
constexpr qsizetype MaxNameUnits = 31;

/// Cuts without leaving half of a surrogate pair.
QString cut(const QString &text, qsizetype units)
{
    if (text.size() <= units)
        return text;
    return text.first(text.at(units - 1).isHighSurrogate() ? units - 1 : units);
}

QString replaceUnwritable(QString text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            ++i;
            continue;
        }
        if (c.isNull() || c.isSurrogate() || c.unicode() >= 0xfffe)
            text[i] = QChar::ReplacementCharacter;
    }
    return text;
}

/// Neither blanks nor apostrophes may stand at the ends of a name.
QString trimName(QString name)
{
    for (qsizetype before = -1; before != name.size();) {
        before = name.size();
        name = name.trimmed();
        while (name.startsWith('\''_L1))
            name.remove(0, 1);
        while (name.endsWith('\''_L1))
            name.chop(1);
    }
    return name;
}

QString acceptableName(const QString &wanted)
{
    static const QRegularExpression forbidden(u"[\\[\\]:*?/\\\\\\x{0}-\\x{1f}\\x{7f}]"_s);
    const QString name = trimName(replaceUnwritable(wanted).replace(forbidden, u"_"_s));
    return trimName(cut(name, MaxNameUnits));
}

} // namespace

QString WorkbookText::cell(const QString &text)
{
    // "_x0041_" would be shown as "A".
    static const QRegularExpression escape(u"_(?=x[0-9A-Fa-f]{4}_)"_s);
    QString result = replaceUnwritable(cut(text, MaxCellUnits));
    if (result.contains("_x"_L1))
        result = cut(result.replace(escape, u"_x005F_"_s), MaxCellUnits);
    return result;
}

QStringList WorkbookText::sheetNames(const QStringList &wanted)
{
    QStringList names;
    // The program that opens the file keeps this one for itself.
    QSet<QString> taken{u"history"_s};
    QHash<QString, int> numbers;
    for (const QString &text : wanted) {
        QString base = acceptableName(text);
        if (base.isEmpty())
            base = u"Sheet%1"_s.arg(names.size() + 1);
        QString name = base;
        int &number = numbers[base.toCaseFolded()];
        while (taken.contains(name.toCaseFolded())) {
            const QString suffix = u" (%1)"_s.arg(++number + 1);
            name = trimName(cut(base, MaxNameUnits - suffix.size())) + suffix;
        }
        taken.insert(name.toCaseFolded());
        names.append(name);
    }
    return names;
}
