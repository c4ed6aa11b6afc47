#include "framework/settings/startlanguage.h"

#include "framework/settings/languagecontext.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr auto OpeningTag = "<Language>"_L1;
constexpr auto ClosingMark = "</"_L1;
constexpr qsizetype LanguageNameLength = 5;

// A settings file is a few kilobytes; something larger put in its place must not fill the memory.
constexpr qint64 MaxSettingsBytes = 16LL * 1024 * 1024;

} // namespace

QString languageFromSettingsText(const QString &settings)
{
    const qsizetype tag = settings.indexOf(OpeningTag);
    if (tag < 1)
        return {};
    const qsizetype begin = tag + OpeningTag.size();
    const qsizetype end = settings.indexOf(ClosingMark, begin);
    const QString name = end < 0 ? settings.sliced(begin) : settings.sliced(begin, end - begin);
    const bool accepted =
        name.size() == LanguageNameLength && name.contains('_'_L1) && LanguageContext::hasLanguage(name);
    return accepted ? name : QString();
}

QString startLanguage(const QString &settingsFile)
{
    const QString stored = languageFromSettingsText(settingsTextForLanguage(settingsFile));
    return stored.isEmpty() ? LanguageContext::systemLanguage() : stored;
}

QString settingsTextForLanguage(const QString &settingsFile)
{
    // Opening a pipe of that name would wait for its other end.
    if (!QFileInfo(settingsFile).isFile())
        return {};
    QFile file(settingsFile);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.read(MaxSettingsBytes));
}

QString nearestLanguage(const QString &language, const QString &systemLanguage, const QStringList &available)
{
    const QString candidates[] = {language, systemLanguage, u"en-EN"_s};
    for (const QString &candidate : candidates) {
        if (available.contains(candidate))
            return candidate;
    }
    return available.isEmpty() ? QString() : available.first();
}
