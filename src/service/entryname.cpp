#include "service/entryname.h"

#include "framework/common/fileutilities.h"

#include <QDir>
#include <QRegularExpression>
#include <QStringDecoder>
#include <QTextCodec>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

bool isSafePart(const QString &part)
{
    // Windows takes off blanks and points at the end, and these names are devices there with any suffix.
    static const QRegularExpression device(u"^(con|prn|aux|nul|com\\d|lpt\\d)\\s*(\\.|$)"_s,
                                           QRegularExpression::CaseInsensitiveOption);
    const bool printable =
        std::all_of(part.begin(), part.end(), [](QChar c) { return c >= u' ' && c != u'|'; });
    return part.isEmpty() || part == "."_L1
           || (printable && FileUtilities::acceptableFileName(part) && !part.endsWith(u'.')
               && !part.endsWith(u' ') && !device.match(part).hasMatch());
}

} // namespace

QString EntryName::decoded(const QByteArray &raw, bool marked)
{
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString name = utf8(raw);
    if (marked || !utf8.hasError())
        return name;
    const QTextCodec *dos = QTextCodec::codecForName("IBM866");
    return dos ? dos->toUnicode(raw) : name;
}

QString EntryName::safePath(const QString &name)
{
    const QStringList parts = name.split(u'/');
    if (name.isEmpty() || name.startsWith(u'/') || !std::all_of(parts.begin(), parts.end(), isSafePart))
        return {};
    return QDir::cleanPath(name);
}
