#include "framework/common/httpguard.h"

#include <QEventLoop>
#include <QHostAddress>
#include <QLoggingCategory>
#include <QNetworkReply>
#include <QTimer>
#include <QUrl>

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(networkLog, "spinbar.network")

namespace {

constexpr int MaxRedirects = 5;

bool isThisMachine(const QString &host)
{
    return host == "localhost"_L1 || QHostAddress(host).isLoopback();
}

bool isSecure(const QUrl &url)
{
    return url.scheme() == "https"_L1;
}

void cutOff(QNetworkReply *reply, const char *reason)
{
    if (reply->isFinished())
        return;
    qCWarning(networkLog) << reply->url().host() << reason;
    reply->abort();
}

} // namespace

bool HttpGuard::isAcceptable(const QUrl &url)
{
    if (!url.isValid() || url.host().isEmpty())
        return false;
    return isSecure(url) || (url.scheme() == "http"_L1 && isThisMachine(url.host()));
}

QNetworkRequest HttpGuard::request(const QUrl &url)
{
    QNetworkRequest request(url);
    request.setRawHeader("Accept-Encoding", "identity");
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::UserVerifiedRedirectPolicy);
    request.setMaximumRedirectsAllowed(MaxRedirects);
    return request;
}

void HttpGuard::watch(QNetworkReply *reply, const Limits &limits)
{
    reply->setReadBufferSize(limits.bytes + 1);
    QObject::connect(reply, &QNetworkReply::readyRead, reply, [reply, limits] {
        if (reply->bytesAvailable() > limits.bytes)
            cutOff(reply, "sends too much");
    });
    // The reply's own address is the target's already when it tells of a redirection.
    QObject::connect(reply, &QNetworkReply::redirected, reply,
                     [reply, secure = isSecure(reply->url())](const QUrl &target) mutable {
                         if (!isAcceptable(target) || (secure && !isSecure(target)))
                             return cutOff(reply, "redirects to an address that is not accepted");
                         secure = isSecure(target);
                         emit reply->redirectAllowed();
                     });
    QTimer::singleShot(limits.time, reply, [reply] { cutOff(reply, "does not answer in time"); });
}

void HttpGuard::wait(QNetworkReply *reply)
{
    QEventLoop loop;
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    if (!reply->isFinished())
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    cutOff(reply, "is not waited for any more");
}

QByteArray HttpGuard::takeBytes(QNetworkReply *reply, const Limits &limits)
{
    const QByteArray bytes = reply->isOpen() ? reply->readAll() : QByteArray();
    return bytes.size() > limits.bytes ? QByteArray() : bytes;
}
