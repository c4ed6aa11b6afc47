#pragma once

#include <QByteArray>
#include <QList>
#include <QTcpServer>
#include <QTcpSocket>

#include <functional>

/// A web server on the loopback that answers every request as a test wants it.
class HttpServer : public QTcpServer
{
public:
    using Answer = std::function<void(QTcpSocket *socket, const QByteArray &request)>;

    explicit HttpServer(Answer theAnswer = {})
        : answer(std::move(theAnswer))
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { read(socket); });
        });
    }

    QString address() const { return QStringLiteral("http://127.0.0.1:%1").arg(serverPort()); }

    static QByteArray head(const QByteArray &status, const QByteArray &fields)
    {
        return "HTTP/1.1 " + status + "\r\nConnection: close\r\n" + fields + "\r\n";
    }

    /// Sends \a bytes as they are and closes.
    static Answer raw(const QByteArray &bytes)
    {
        return [bytes](QTcpSocket *socket, const QByteArray &) {
            socket->write(bytes);
            socket->disconnectFromHost();
        };
    }

    static Answer whole(const QByteArray &body, const QByteArray &status = "200 OK")
    {
        return raw(head(status, "Content-Length: " + QByteArray::number(body.size()) + "\r\n") + body);
    }

    Answer answer;
    QList<QByteArray> requests; ///< heads, with the bodies that came along

private:
    void read(QTcpSocket *socket)
    {
        QByteArray request = socket->property("request").toByteArray() + socket->readAll();
        socket->setProperty("request", request);
        const qsizetype end = request.indexOf("\r\n\r\n");
        const qsizetype length = request.toLower().indexOf("content-length: ");
        const qsizetype body =
            length < 0 ? 0 : request.sliced(length + 16, request.indexOf('\r', length) - length - 16).toInt();
        if (end < 0 || request.size() < end + 4 + body)
            return;
        requests += request;
        if (answer)
            answer(socket, request);
    }
};
