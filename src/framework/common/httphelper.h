#pragma once

#include <QByteArray>
#include <QJsonDocument>
#include <QMap>
#include <QObject>
#include <QString>

/// Simple requests that wait for their answer in an event loop of their own, within the bounds of HttpGuard.
/// Where no good answer comes, the result is empty.
class HttpHelper : public QObject
{
    Q_OBJECT

public:
    static HttpHelper *Instance();

    /// \a error, if given, becomes the reason of a failure and else empty.
    QByteArray get(const QString &url, QByteArray *error = nullptr);
    QJsonDocument getJson(const QString &url);
    /// The parameters are sent form-encoded.
    QByteArray post(const QString &url, const QMap<QString, QString> &parameters);
    QJsonDocument postJson(const QString &url, const QMap<QString, QString> &parameters);

signals:
    void progress(const QString &url, qint64 bytesReceived, qint64 bytesTotal);

private:
    /// A POST of \a form, or a GET if that is null.
    QByteArray exchange(const QString &url, const QByteArray *form, QByteArray *error);
};
