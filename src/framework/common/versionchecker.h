#pragma once

#include "framework/common/httpguard.h"
#include "framework/common/versioninfo.h"

#include <QObject>
#include <QUrl>

#include <functional>

class NTimer;
class QNetworkAccessManager;
class QNetworkReply;

/// Asks the maker's server from time to time whether a newer version exists. It only tells; nothing is
/// downloaded. Without a host nothing is ever asked. Main thread only.
class VersionChecker : public QObject
{
    Q_OBJECT

public:
    explicit VersionChecker(QObject *parent = nullptr);

    /// The process-wide one, which asks the host that the program was built with, if any.
    static VersionChecker *Instance();

    /// With \a enable checks at once and then every \a seconds, but not more often than every 5 s; without
    /// it a running timer goes on.
    static void StartChecking(bool enable, int seconds);
    /// Does nothing while a request is under way and within 5 s of the last one.
    static void FindNewVersionAsync();
    /// Not valid before the first answer.
    static VersionInfo LastVersion();

    /// The blocking forms, with an event loop of their own.
    static VersionInfo findNewVersion(const QString &app, const QString &version, const QString &locale);
    static VersionInfo findNewVersion(const QString &locale);

    /// The address of the service on \a host, which may name a scheme and a port. Empty if there is no host
    /// or its scheme is not accepted, see HttpGuard.
    static QUrl endpoint(const QString &host);
    void setHost(const QString &host);
    void setLimits(const HttpGuard::Limits &limits) { m_limits = limits; }
    /// Where the seconds since the epoch come from.
    void setClock(const std::function<qint64()> &clock) { m_clock = clock; }
    /// 0 while there is no periodic check.
    int intervalMs() const;

signals:
    /// After each answer, and each failure, which gives an invalid \a info.
    void versionFound(const VersionInfo &info);

private:
    QUrl requestUrl(const QString &app, const QString &version, const QString &locale) const;
    void start(bool enable, int seconds);
    void findAsync();
    void takeReply(QNetworkReply *reply);

    QUrl m_endpoint;
    HttpGuard::Limits m_limits;
    std::function<qint64()> m_clock;
    NTimer *m_timer = nullptr;
    VersionInfo m_lastVersion;
    qint64 m_lastRequestSeconds = 0;
    QNetworkAccessManager *m_network = nullptr;
    bool m_ready = true;
};
