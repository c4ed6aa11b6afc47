#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

/// Text forms of numbers and times, and the splitting of texts.
namespace TextHelper {

/// \a precision below 0: format 'g' with 6 digits, otherwise 'f'; with the system's decimal separator.
QString numToStr(double value, int precision);

/// The decimal separator of the system locale, looked up once.
QString numDecimalSeparator();

/// "mm:ss", with "hh:" in front from one hour on and ".zzz" behind when \a milliseconds is set.
QString TimeToText(double seconds, bool milliseconds);

/// "yyyy.MM.dd-hh.mm.ss" with ".zzz" on request; an invalid \a dateTime means now. Safe as a file name.
QString DateTimeFileString(const QDateTime &dateTime, bool milliseconds);

QString trim(const QString &text, QChar c);
QString trim(const QString &text, const QString &part);

/// Trims \a text and each of its parts, and drops the parts that are then empty.
QStringList splitAndTrim(const QString &text, const QString &separator);

/// Splits by each separator in turn.
QStringList multisplit(const QString &text, const QStringList &separators,
                       Qt::SplitBehavior flags = Qt::KeepEmptyParts);

QString join(const QStringList &list, const QString &separator, const QString &prefix = {},
             const QString &suffix = {});

Qt::SplitBehavior SkipEmptyParts();

} // namespace TextHelper
