#include "framework/common/apphelper.h"

#include "framework/common/platform.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QEventLoop>
#include <QOperatingSystemVersion>
#include <QProcess>
#include <QSysInfo>
#include <QTimer>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr auto ImageEnding = ".exe"_L1;
constexpr auto DebugImageEnding = "d.exe"_L1;
// Ten rounds make three seconds, in which a process that has been asked to quit is long gone.
constexpr int RoundMs = 300;

void processEventsFor(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

QString upToNumber(const QString &version, int numbers)
{
    return version.section('.'_L1, 0, numbers - 1);
}

QString systemOfProduct(const QString &product)
{
    static constexpr std::array<std::pair<QLatin1StringView, QLatin1StringView>, 14> systems{
        {{"windows"_L1, "windows"_L1},
         {"winrt"_L1, "windows"_L1},
         {"android"_L1, "android"_L1},
         {"osx"_L1, "macos"_L1},
         {"mac"_L1, "macos"_L1},
         {"ios"_L1, "ios"_L1},
         {"tvos"_L1, "tvos"_L1},
         {"watchos"_L1, "watchos"_L1},
         {"ubuntu"_L1, "linux"_L1},
         {"linux"_L1, "linux"_L1},
         {"manjaro"_L1, "linux"_L1},
         {"centos"_L1, "linux"_L1},
         {"fedora"_L1, "linux"_L1},
         {"raspberry"_L1, "linux"_L1}}};
    const auto found = std::find_if(systems.begin(), systems.end(),
                                    [&](const auto &system) { return product.contains(system.first); });
    return found == systems.end() ? u"unix"_s : QString(found->second);
}

} // namespace

QStringList AppHelper::getRunningApps()
{
    return Platform::runningImageNames();
}

QStringList AppHelper::findRunningApps(const QStringList &names)
{
    return selectRunningApps(names, getRunningApps(), QCoreApplication::applicationName() + ImageEnding);
}

QStringList AppHelper::selectRunningApps(const QStringList &names, const QStringList &running,
                                         const QString &ownName)
{
    QStringList wanted;
    for (QString name : names) {
        if (name.endsWith(ImageEnding, Qt::CaseInsensitive))
            name.chop(ImageEnding.size());
        if (!wanted.contains(name + ImageEnding, Qt::CaseInsensitive))
            wanted << name + ImageEnding << name + DebugImageEnding;
    }
    QStringList found;
    bool ownSeen = false;
    for (const QString &image : running) {
        if (!wanted.contains(image, Qt::CaseInsensitive))
            continue;
        if (!ownSeen && image.compare(ownName, Qt::CaseInsensitive) == 0)
            ownSeen = true;
        else
            found.append(image);
    }
    return found;
}

QStringList AppHelper::waitForAppsToEnd(const QStringList &apps, int attempts)
{
    QStringList running = findRunningApps(apps);
    if (running.isEmpty())
        return running;
    for (int round = 0; round < attempts; ++round) {
        processEventsFor(RoundMs);
        running = findRunningApps(apps);
    }
    return running;
}

QString AppHelper::runningAppsMessage(const QStringList &running)
{
    const QString reason = running.size() == 1
                               ? QCoreApplication::translate("Generic", "this app is already running")
                               : QCoreApplication::translate("Generic", "these apps are already running");
    return QCoreApplication::translate("Generic", "Cannot start because") + ' '_L1 + reason + ":\n"_L1
           + running.join('\n'_L1);
}

void AppHelper::restart(const QStringList &arguments)
{
    const QString program = QCoreApplication::arguments().value(0);
    quit();
    QProcess::startDetached(program, arguments);
}

void AppHelper::restart()
{
    restart(QCoreApplication::arguments());
}

void AppHelper::quit()
{
    QCoreApplication::quit();
}

QString AppHelper::appVersion(bool withPatch)
{
    QString version = QCoreApplication::applicationVersion();
    if (version.count('.'_L1) == 3)
        version = upToNumber(version, 3);
    if (!withPatch && version.count('.'_L1) == 2)
        version = upToNumber(version, 2);
    return version;
}

QString AppHelper::OS()
{
    static const QString system = systemOfProduct(QSysInfo::productType().toLower());
    return system;
}

QString AppHelper::OSName()
{
    const QString name = QOperatingSystemVersion::current().name();
    return name.isEmpty() ? QSysInfo::productType() : name;
}

QString AppHelper::OSVersion()
{
    // Where Qt numbers no versions, the name of the distribution's release stands in.
    const auto version = QOperatingSystemVersion::current();
    if (version.majorVersion() < 0)
        return QSysInfo::productVersion();
    return u"%1.%2.%3"_s.arg(version.majorVersion()).arg(version.minorVersion()).arg(version.microVersion());
}

QString AppHelper::getFileFilterString(const QString &name, const QStringList &extensions)
{
    QString filter = name.isEmpty() ? QString() : name + ' '_L1;
    if (extensions.isEmpty())
        return filter;
    QStringList patterns;
    for (QString extension : extensions) {
        if (extension.startsWith("*."_L1))
            extension.remove(0, 2);
        else if (extension.startsWith('.'_L1))
            extension.remove(0, 1);
        if (!extension.isEmpty())
            patterns.append("*."_L1 + extension);
    }
    return filter + '('_L1 + patterns.join(' '_L1) + ");"_L1;
}

QString AppHelper::findInResources(const QString &fileName)
{
    static const QStringList paths = [] {
        QStringList all;
        QDirIterator entries(u":"_s, QDirIterator::Subdirectories);
        while (entries.hasNext())
            all.append(entries.next());
        return all;
    }();
    for (const Qt::CaseSensitivity sensitivity : {Qt::CaseSensitive, Qt::CaseInsensitive}) {
        const auto found = std::find_if(paths.cbegin(), paths.cend(), [&](const QString &path) {
            return path.endsWith(fileName, sensitivity);
        });
        if (found != paths.cend())
            return found->startsWith(':'_L1) ? "qrc"_L1 + *found : *found;
    }
    return {};
}
