#include "framework/common/changelog.h"

#include "framework/common/apphelper.h"
#include "framework/common/fileutilities.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 MaxBytes = 1024LL * 1024;
constexpr auto NamePart = "ChangeLog"_L1;

/// The first "txt" file of the folder whose name holds both.
QString fileWith(const QString &folder, const QString &part)
{
    const QStringList names = FileUtilities::getFilesOfType(folder, u"txt"_s, false, false);
    const auto found = std::find_if(names.cbegin(), names.cend(), [&](const QString &name) {
        return name.contains(NamePart, Qt::CaseInsensitive) && name.contains(part, Qt::CaseInsensitive);
    });
    return found == names.cend() ? QString() : folder + '/'_L1 + *found;
}

QString fileInResources()
{
    QString path = AppHelper::findInResources(u"ChangeLog.txt"_s);
    if (path.startsWith("qrc:/"_L1))
        path.remove(0, 3);
    return path;
}

/// A tag with its end tag and what stands between them; it starts below 0 if there is none.
struct Block
{
    qsizetype start = -1;
    qsizetype length = 0;
    QString replacement;
};

Block firstBlock(const QString &text, const QStringList &languages)
{
    for (qsizetype open = text.indexOf('<'_L1); open >= 0; open = text.indexOf('<'_L1, open + 1)) {
        const qsizetype close = text.indexOf('>'_L1, open);
        if (close < 0)
            break;
        const QString name = text.sliced(open + 1, close - open - 1);
        const QString endTag = "</"_L1 + name + '>'_L1;
        const qsizetype end = text.indexOf(endTag, close);
        if (end < 0)
            continue;
        const QString content = text.sliced(close + 1, end - close - 1).trimmed();
        return {open, end + endTag.size() - open, languages.contains(name) ? content : QString()};
    }
    return {};
}

} // namespace

QString ChangeLog::find(const QString &folder, const QString &application)
{
    QString path = fileWith(folder, application);
    if (path.isEmpty())
        path = fileInResources();
    if (path.isEmpty())
        path = fileWith(folder, {});
    QFile file(path);
    // Opening a pipe of that name would wait for its other end.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.read(MaxBytes)).remove('\r'_L1).replace('\n'_L1, "\r\n"_L1);
}

QString ChangeLog::inLanguage(QString text, const QString &language)
{
    const QStringList languages = language.contains("en"_L1, Qt::CaseInsensitive)
                                      ? QStringList{u"en-US"_s, u"en-EN"_s, u"en"_s}
                                      : QStringList{u"ru-RU"_s, u"ru"_s, u"ru_RU"_s};
    for (Block block = firstBlock(text, languages); block.start >= 0; block = firstBlock(text, languages))
        text.replace(block.start, block.length, block.replacement);
    return text.replace("\r\n\r\n+"_L1, "\r\n+"_L1).replace("\r\n\r\n\r\n"_L1, "\r\n\r\n"_L1);
}
