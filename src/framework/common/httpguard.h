#pragma once

#include <QNetworkRequest>

#include <chrono>

class QNetworkReply;
class QUrl;

/// What keeps an exchange with a server within bounds, whatever the server does.
namespace HttpGuard {

struct Limits
{
    qint64 bytes = 0;
    std::chrono::milliseconds time{0}; ///< from the request to the last byte
};

/// Whether we talk to that address: over https, or over http with a server on this machine.
bool isAcceptable(const QUrl &url);

/// Asks for an answer that is not compressed, so that its bytes can be counted.
QNetworkRequest request(const QUrl &url);

/// Aborts the reply when it passes a limit. A redirection is followed if its target is acceptable and does
/// not leave https.
void watch(QNetworkReply *reply, const Limits &limits);

/// Runs an event loop of its own until the reply is finished; if the application ends first, it is aborted.
void wait(QNetworkReply *reply);

/// Everything that came, or nothing if the reply was cut off for its length.
QByteArray takeBytes(QNetworkReply *reply, const Limits &limits);

} // namespace HttpGuard
