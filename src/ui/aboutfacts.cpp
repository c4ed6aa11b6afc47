#include "ui/aboutfacts.h"

#include "framework/common/apphelper.h"
#include "framework/common/fileutilities.h"
#include "framework/common/platform.h"
#include "framework/common/widgets/mediahelper.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QNetworkInterface>
#include <QSysInfo>

using namespace Qt::StringLiterals;

namespace {

/// \a detail in brackets and less strong, behind \a text.
QString withDetail(const QString &text, const QString &detail)
{
    return text.toHtmlEscaped() + " <span style=\"color: #789\">("_L1 + detail.toHtmlEscaped()
           + ")</span>"_L1;
}

QString balloon()
{
    // Rich text knows resources by their path only.
    const QString image = MediaHelper::resourcePath(AppHelper::findInResources(u"balloon.png"_s));
    if (image.isEmpty())
        return u"\U0001F388"_s;
    const QString greeting = QCoreApplication::translate("AboutAppWidget", "С днём рождения!");
    return "<img src=\""_L1 + image + "\" width=\"10\" height=\"14\" title=\""_L1 + greeting.toHtmlEscaped()
           + "\"/>"_L1;
}

} // namespace

QStringList AboutFacts::manualFolders()
{
    // The second is named from where the program's folder stands, unless it is a whole path.
    const QString program = QCoreApplication::applicationDirPath();
    return {program, QDir(program + "/.."_L1).filePath(QStringLiteral(SPINBAR_DOC_FOLDER))};
}

QString AboutFacts::manual(const QStringList &folders, const QString &language)
{
    const QString wanted = language.section('_'_L1, 0, 0);
    QString first;
    for (const QString &folder : folders) {
        const QStringList names = FileUtilities::getFilesOfType(folder, u"pdf"_s, false, false);
        for (const QString &name : names) {
            const QString path = folder + '/'_L1 + name;
            if (name.contains(wanted, Qt::CaseInsensitive))
                return path;
            if (first.isEmpty())
                first = path;
        }
    }
    return first;
}

QString AboutFacts::version()
{
    const QDateTime built = QFileInfo(QCoreApplication::applicationFilePath()).lastModified();
    return withDetail(AppHelper::appVersion(true),
                      QCoreApplication::translate("Generic", "built on ") + built.toString(u"yyyy-MM-dd"_s));
}

QString AboutFacts::system()
{
    const auto bits = QSysInfo::currentCpuArchitecture().contains("64"_L1) ? "64"_L1 : "32"_L1;
    return withDetail(Platform::systemTitle() + ' '_L1 + bits
                          + QCoreApplication::translate("Generic", "-bit"),
                      QSysInfo::kernelVersion());
}

namespace {

QString currentAddresses()
{
    QStringList addresses;
    for (const QNetworkInterface &card : QNetworkInterface::allInterfaces()) {
        if (!card.flags().testFlag(QNetworkInterface::IsRunning)
            || card.flags().testFlag(QNetworkInterface::IsLoopBack))
            continue;
        for (const QNetworkAddressEntry &entry : card.addressEntries()) {
            if (entry.ip().protocol() == QAbstractSocket::IPv4Protocol)
                addresses += entry.ip().toString();
        }
    }
    return addresses.join("\r\n"_L1);
}

} // namespace

const QString &AboutFacts::addresses()
{
    static const QString read = currentAddresses();
    return read;
}

QString AboutFacts::developers(const QMap<QString, QDateTime> &developers, const QDate &today)
{
    QString text;
    for (auto [name, date] : developers.asKeyValueRange()) {
        if (date.date().day() == today.day() && date.date().month() == today.month())
            text += ' '_L1 + balloon();
        text += name.toHtmlEscaped() + "<br/>"_L1;
    }
    return text;
}

QString AboutFacts::withoutScheme(const QString &link)
{
    const qsizetype scheme = link.indexOf("://"_L1);
    return scheme < 0 ? link : link.sliced(scheme + 3);
}
