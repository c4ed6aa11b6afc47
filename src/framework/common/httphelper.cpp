#include "framework/common/httphelper.h"

#include "framework/common/httpguard.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QUrl>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr HttpGuard::Limits AnswerLimits{16LL * 1024 * 1024, 60s};

/// Everything but the letters that never need an escape is escaped, a plus too.
QByteArray formEncoded(const QMap<QString, QString> &parameters)
{
    QByteArrayList parts;
    for (auto [key, value] : parameters.asKeyValueRange())
        parts += QUrl::toPercentEncoding(key) + '=' + QUrl::toPercentEncoding(value);
    return parts.join('&');
}

} // namespace

HttpHelper *HttpHelper::Instance()
{
    static HttpHelper helper;
    return &helper;
}

QByteArray HttpHelper::get(const QString &url, QByteArray *error)
{
    return exchange(url, nullptr, error);
}

QJsonDocument HttpHelper::getJson(const QString &url)
{
    return QJsonDocument::fromJson(get(url));
}

QByteArray HttpHelper::post(const QString &url, const QMap<QString, QString> &parameters)
{
    const QByteArray form = formEncoded(parameters);
    return exchange(url, &form, nullptr);
}

QJsonDocument HttpHelper::postJson(const QString &url, const QMap<QString, QString> &parameters)
{
    return QJsonDocument::fromJson(post(url, parameters));
}

QByteArray HttpHelper::exchange(const QString &url, const QByteArray *form, QByteArray *error)
{
    const QUrl address(url);
    if (!HttpGuard::isAcceptable(address)) {
        if (error)
            *error = "The address is not accepted.";
        return {};
    }
    QNetworkAccessManager network;
    QNetworkRequest request = HttpGuard::request(address);
    if (form)
        request.setHeader(QNetworkRequest::ContentTypeHeader, u"application/x-www-form-urlencoded"_s);
    QNetworkReply *reply = form ? network.post(request, *form) : network.get(request);
    HttpGuard::watch(reply, AnswerLimits);
    connect(reply, &QNetworkReply::downloadProgress, this,
            [this, url](qint64 received, qint64 total) { emit progress(url, received, total); });
    HttpGuard::wait(reply);
    const bool failed = reply->error() != QNetworkReply::NoError;
    if (error)
        *error = failed ? reply->errorString().toUtf8() : QByteArray();
    return failed ? QByteArray() : HttpGuard::takeBytes(reply, AnswerLimits);
}
