#include "framework/common/texthelper.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int GeneralFormatDigits = 6;
constexpr qint64 SecondsPerMinute = 60;
constexpr qint64 SecondsPerHour = 3600;
constexpr int MillisecondsPerSecond = 1000;
constexpr qsizetype UsualTimeLength = 12;
// Keeps the conversion to an integer defined for any input.
constexpr double MaxTimeSeconds = 1e12;

/// Not by a pattern: tables hold thousands of times.
void appendTwoDigits(QString &text, qint64 value)
{
    if (value >= 0 && value <= 9)
        text.append(u'0').append(QChar(u'0' + int(value)));
    else
        text.append(QString::number(value));
}

} // namespace

QString TextHelper::numToStr(double value, int precision)
{
    QString text = precision < 0 ? QString::number(value, 'g', GeneralFormatDigits)
                                 : QString::number(value, 'f', precision);
    if (numDecimalSeparator() != "."_L1)
        text.replace("."_L1, numDecimalSeparator());
    return text;
}

QString TextHelper::numDecimalSeparator()
{
    static const QString separator = QLocale::system().decimalPoint();
    return separator;
}

QString TextHelper::TimeToText(double seconds, bool milliseconds)
{
    if (!std::isfinite(seconds))
        seconds = 0;
    seconds = std::clamp(seconds, -MaxTimeSeconds, MaxTimeSeconds);
    const auto whole = static_cast<qint64>(seconds);
    const qint64 hours = whole / SecondsPerHour;
    QString text;
    text.reserve(UsualTimeLength);
    if (hours >= 1) {
        appendTwoDigits(text, hours);
        text.append(u':');
    }
    appendTwoDigits(text, whole % SecondsPerHour / SecondsPerMinute);
    text.append(u':');
    appendTwoDigits(text, whole % SecondsPerMinute);
    if (milliseconds) {
        // Rounded, since 75.001 s is stored as slightly less; never up to a full second.
        const int thousandths =
            std::min(static_cast<int>(std::lround((seconds - double(whole)) * MillisecondsPerSecond)),
                     MillisecondsPerSecond - 1);
        text += u".%1"_s.arg(thousandths, 3, 10, '0'_L1);
    }
    return text;
}

QString TextHelper::DateTimeFileString(const QDateTime &dateTime, bool milliseconds)
{
    const QDateTime moment = dateTime.isValid() ? dateTime : QDateTime::currentDateTime();
    return moment.toString(milliseconds ? u"yyyy.MM.dd-hh.mm.ss.zzz"_s : u"yyyy.MM.dd-hh.mm.ss"_s);
}

QString TextHelper::trim(const QString &text, QChar c)
{
    return trim(text, QString(c));
}

QString TextHelper::trim(const QString &text, const QString &part)
{
    if (part.isEmpty())
        return text;
    QStringView view(text);
    while (view.startsWith(part))
        view = view.sliced(part.size());
    while (view.endsWith(part))
        view.chop(part.size());
    return view.toString();
}

QStringList TextHelper::splitAndTrim(const QString &text, const QString &separator)
{
    QStringList parts;
    const QStringList raw = text.trimmed().split(separator);
    for (const QString &part : raw) {
        if (const QString trimmed = part.trimmed(); !trimmed.isEmpty())
            parts.append(trimmed);
    }
    return parts;
}

QStringList TextHelper::multisplit(const QString &text, const QStringList &separators,
                                   Qt::SplitBehavior flags)
{
    QStringList parts{text};
    for (const QString &separator : separators) {
        QStringList finer;
        for (const QString &part : std::as_const(parts))
            finer += part.split(separator, flags);
        parts = finer;
    }
    return parts;
}

QString TextHelper::join(const QStringList &list, const QString &separator, const QString &prefix,
                         const QString &suffix)
{
    QStringList items;
    items.reserve(list.size());
    for (const QString &item : list)
        items.append(prefix + item + suffix);
    return items.join(separator);
}

Qt::SplitBehavior TextHelper::SkipEmptyParts()
{
    return Qt::SkipEmptyParts;
}
