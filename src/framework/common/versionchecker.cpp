#include "framework/common/versionchecker.h"

#include "framework/common/apphelper.h"
#include "framework/common/ntimer.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>
#include <QLoggingCategory>
#include <QNetworkAccessManager>
#include <QNetworkReply>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

Q_LOGGING_CATEGORY(versionLog, "spinbar.version")

namespace {

constexpr int MinIntervalSeconds = 5;
constexpr int MsPerSecond = 1'000;
constexpr qint64 MaxReplyBytes = 256LL * 1024;
constexpr auto MaxReplyTime = 30s;

qint64 secondsSinceEpoch()
{
    return QDateTime::currentSecsSinceEpoch();
}

} // namespace

VersionChecker::VersionChecker(QObject *parent)
    : QObject(parent)
    , m_endpoint(endpoint(QStringLiteral(SPINBAR_UPDATE_HOST)))
    , m_limits{MaxReplyBytes, MaxReplyTime}
    , m_clock(secondsSinceEpoch)
{
    qRegisterMetaType<VersionInfo>();
}

VersionChecker *VersionChecker::Instance()
{
    static auto *checker = new VersionChecker;
    return checker;
}

void VersionChecker::StartChecking(bool enable, int seconds)
{
    Instance()->start(enable, seconds);
}

void VersionChecker::FindNewVersionAsync()
{
    Instance()->findAsync();
}

VersionInfo VersionChecker::LastVersion()
{
    return Instance()->m_lastVersion;
}

QUrl VersionChecker::endpoint(const QString &host)
{
    if (host.isEmpty())
        return {};
    const QUrl url((host.contains("://"_L1) ? host : "https://"_L1 + host) + "/repo/version.php"_L1);
    if (HttpGuard::isAcceptable(url))
        return url;
    qCWarning(versionLog) << "no newer version is looked for, the host is not accepted:" << host;
    return {};
}

void VersionChecker::setHost(const QString &host)
{
    m_endpoint = endpoint(host);
}

int VersionChecker::intervalMs() const
{
    return m_timer && m_timer->isActive() ? m_timer->interval() : 0;
}

QUrl VersionChecker::requestUrl(const QString &app, const QString &version, const QString &locale) const
{
    return QUrl(m_endpoint.toString() + "?app="_L1 + app + "&version="_L1 + version + "&locale="_L1 + locale
                + "&platform="_L1 + AppHelper::OS() + "&os="_L1 + AppHelper::OSName() + "&osversion="_L1
                + AppHelper::OSVersion());
}

void VersionChecker::start(bool enable, int seconds)
{
    if (!m_timer) {
        m_timer = new NTimer(this);
        connect(m_timer, &QTimer::timeout, this, &VersionChecker::findAsync, Qt::QueuedConnection);
    }
    if (!enable || m_endpoint.isEmpty())
        return;
    m_timer->start(std::max(seconds, MinIntervalSeconds) * MsPerSecond);
    findAsync();
}

void VersionChecker::findAsync()
{
    if (!m_ready || m_endpoint.isEmpty())
        return;
    const qint64 now = m_clock();
    // A clock that was set back says nothing of how long ago the last request was.
    const qint64 passed = now - m_lastRequestSeconds;
    if (passed >= 0 && passed < MinIntervalSeconds)
        return;
    m_lastRequestSeconds = now;
    m_ready = false;
    if (!m_network) {
        m_network = new QNetworkAccessManager(this);
        connect(m_network, &QNetworkAccessManager::finished, this, &VersionChecker::takeReply,
                Qt::QueuedConnection);
        // Its thread must not outlive the application.
        connect(qApp, &QCoreApplication::aboutToQuit, m_network, [this] {
            delete m_network;
            m_network = nullptr;
        });
    }
    const QUrl url = requestUrl(QCoreApplication::applicationName(), AppHelper::appVersion(true),
                                QLocale::system().name());
    HttpGuard::watch(m_network->get(HttpGuard::request(url)), m_limits);
}

void VersionChecker::takeReply(QNetworkReply *reply)
{
    if (!m_network)
        return; // the application has ended meanwhile, and the reply with it
    // Whatever went wrong shows in bytes that are no valid answer.
    m_lastVersion = VersionInfo::fromJson(HttpGuard::takeBytes(reply, m_limits));
    qCDebug(versionLog) << "newest version:" << m_lastVersion.version << reply->error();
    emit versionFound(m_lastVersion);
    reply->deleteLater();
    m_ready = true;
}

VersionInfo VersionChecker::findNewVersion(const QString &app, const QString &version, const QString &locale)
{
    VersionChecker *checker = Instance();
    if (checker->m_endpoint.isEmpty())
        return {};
    QNetworkAccessManager network;
    QNetworkReply *reply = network.get(HttpGuard::request(checker->requestUrl(app, version, locale)));
    HttpGuard::watch(reply, checker->m_limits);
    HttpGuard::wait(reply);
    checker->m_lastVersion = VersionInfo::fromJson(HttpGuard::takeBytes(reply, checker->m_limits));
    return checker->m_lastVersion;
}

VersionInfo VersionChecker::findNewVersion(const QString &locale)
{
    return findNewVersion(QCoreApplication::applicationName(), AppHelper::appVersion(true), locale);
}
