#include "framework/common/httphelper.h"
#include "framework/common/versionchecker.h"

#include "httpserver.h"
#include "rows.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr qint64 LimitBytes = 20'000;
constexpr auto LimitTime = 400ms;
constexpr qint64 SentWithoutLimit = 50'000'000;
const QByteArray Good = R"({"valid": true, "version": "2.0.1", "date": "2027-01-31", "critical": true,
    "link": "https://example.org/get", "changelog": "+ more", "info": "new"})";
const VersionInfo GoodInfo{true,        u"2.0.1"_s, u"2027-01-31"_s, true, u"https://example.org/get"_s,
                           u"+ more"_s, u"new"_s};

/// One byte with each turn of the event loop.
void dribble(QTcpSocket *socket, const QByteArray &bytes)
{
    if (bytes.isEmpty())
        return socket->disconnectFromHost();
    socket->write(bytes.first(1));
    QTimer::singleShot(0, socket, [=] { dribble(socket, bytes.sliced(1)); });
}

/// Blanks for as long as somebody reads; \a sent counts them.
void flood(QTcpSocket *socket, const std::shared_ptr<qint64> &sent)
{
    const auto more = [=] {
        const QByteArray blanks(10'000, ' ');
        if (*sent < SentWithoutLimit && socket->bytesToWrite() < blanks.size())
            *sent += socket->write(blanks);
    };
    QObject::connect(socket, &QTcpSocket::bytesWritten, socket, more);
    more();
}

HttpServer::Answer redirection(const QByteArray &target)
{
    return [target](QTcpSocket *socket, const QByteArray &request) {
        const bool isTarget = request.startsWith("GET /target ");
        (isTarget ? HttpServer::whole(Good)
                  : HttpServer::raw(HttpServer::head(
                      "302 Found", "Location: " + target + "\r\nContent-Length: 0\r\n")))(socket, request);
    };
}

} // namespace

class TestNetwork : public QObject
{
    Q_OBJECT

    qint64 m_now = 1'000;
    VersionChecker *m_checker = nullptr;

    /// What the next check finds.
    VersionInfo check()
    {
        m_now += 10;
        QSignalSpy found(m_checker, &VersionChecker::versionFound);
        VersionChecker::FindNewVersionAsync();
        return found.wait() ? found.constFirst().constFirst().value<VersionInfo>()
                            : VersionInfo::fromJson(R"({"version": "never told"})");
    }

private slots:
    void initTestCase()
    {
        QCoreApplication::setApplicationName(u"Spinbar"_s);
        QCoreApplication::setApplicationVersion(u"1.2.3"_s);
        m_checker = VersionChecker::Instance();
        m_checker->setClock([this] { return m_now; });
        m_checker->setLimits({LimitBytes, LimitTime});
    }

    void hostsAreTakenOverSafeWaysOnly()
    {
        const auto endpoint = [](const QString &host) { return VersionChecker::endpoint(host).toString(); };
        const QString path = u"/repo/version.php"_s;
        QCOMPARE(endpoint(u"updates.example.org:8443"_s), u"https://updates.example.org:8443"_s + path);
        for (const QString &host : {u"https://updates.example.org"_s, u"http://127.0.0.1:8080"_s,
                                    u"http://[::1]:8080"_s, u"http://localhost"_s})
            QCOMPARE(endpoint(host), host + path);
        for (const QString &host :
             {u""_s, u"http://updates.example.org"_s, u"http://localhost.example.org"_s,
              u"http://127.0.0.1@example.org"_s, u"ftp://127.0.0.1"_s, u"file://"_s, u"a b"_s})
            QCOMPARE(endpoint(host), QString());
    }

    void nothingIsAskedWithoutHost()
    {
        HttpServer server(HttpServer::whole(Good));
        m_checker->setHost({});
        VersionChecker::StartChecking(true, 600);
        QCOMPARE(m_checker->intervalMs(), 0);
        QVERIFY(!VersionChecker::findNewVersion(u"ru_RU"_s).valid);
        // Had it counted as a check, this one would come too soon.
        m_checker->setHost(server.address());
        QSignalSpy found(m_checker, &VersionChecker::versionFound);
        VersionChecker::StartChecking(true, 1);
        QCOMPARE(m_checker->intervalMs(), 5'000);
        QVERIFY(found.wait());
        QCOMPARE(server.requests.size(), 1);
        VersionChecker::StartChecking(false, 1);
        QCOMPARE(m_checker->intervalMs(), 5'000);
    }

    void requestNamesProgramAndSystem()
    {
        HttpServer server(HttpServer::whole(Good));
        m_checker->setHost(server.address());
        QCOMPARE(check(), GoodInfo);
        QCOMPARE(VersionChecker::findNewVersion(u"App"_s, u"1.0"_s, u"de_DE"_s), GoodInfo);
        QCOMPARE(server.requests.size(), 2);
        QVERIFY(server.requests.at(0).startsWith("GET /repo/version.php?app=Spinbar&version=1.2.3&locale="));
        QVERIFY(server.requests.at(1).startsWith(
            "GET /repo/version.php?app=App&version=1.0&locale=de_DE&platform="));
        const QByteArray line = server.requests.at(1).first(server.requests.at(1).indexOf('\r'));
        QVERIFY(line.indexOf("&os=") < line.indexOf("&osversion="));
    }

    void requestsAreApart()
    {
        HttpServer server(HttpServer::whole(Good));
        m_checker->setHost(server.address());
        QSignalSpy found(m_checker, &VersionChecker::versionFound);
        // Each has a version of its own, so that it shows which ones were sent.
        const auto ask = [&](const QString &version, qint64 passed) {
            m_now += passed;
            QCoreApplication::setApplicationVersion(version);
            VersionChecker::FindNewVersionAsync();
        };
        ask(u"first"_s, 1'000);
        ask(u"under way"_s, 4'000);
        QVERIFY(found.wait());
        m_now -= 4'000;
        ask(u"too soon"_s, 4);
        ask(u"later"_s, 1);
        QVERIFY(found.wait());
        ask(u"clock set back"_s, -50'000);
        QVERIFY(found.wait());
        QCoreApplication::setApplicationVersion(u"1.2.3"_s);
        QByteArrayList versions;
        for (const QByteArray &request : server.requests)
            versions += request.mid(request.indexOf("version=") + 8, 5);
        QCOMPARE(versions, QByteArrayList({"first", "later", "clock"}));
    }

    void answersAreTakenOrRefused_data()
    {
        const auto row = columns<HttpServer::Answer, VersionInfo>("answer", "expected");
        const auto body = [](const QByteArray &text) { return HttpServer::whole(text); };
        const QByteArray endless = HttpServer::head("200 OK", "");
        row("error page that answers", HttpServer::whole(Good, "500 Internal Server Error"), GoodInfo);
        row("keys missing", body(R"({"valid": true})"), VersionInfo::fromJson(R"({"valid": true})"));
        row("keys of other types",
            body(R"({"valid": "true", "version": 5, "critical": 1, "link": ["x"], "info": null})"), {});
        row("page", HttpServer::whole("<html>404</html>", "404 Not Found"), {});
        row("array", body("[" + Good + "]"), {});
        row(
            "byte by byte", [=](QTcpSocket *socket, const QByteArray &) { dribble(socket, endless + Good); },
            GoodInfo);
        row("ends in the middle",
            HttpServer::raw(HttpServer::head("200 OK", "Content-Length: 500\r\n") + Good.first(60)), {});
        row("another protocol", HttpServer::raw("SSH-2.0-server\r\n"), {});
        row("hangs up", HttpServer::raw(""), {});
        row("stops in the middle",
            [=](QTcpSocket *socket, const QByteArray &) { socket->write(endless + Good.first(60)); }, {});
        row("one byte too long", body(Good + QByteArray(LimitBytes + 1 - Good.size(), ' ')), {});
        row("as long as can be", body(Good + QByteArray(LimitBytes - Good.size(), ' ')), GoodInfo);
        row("redirected", redirection("/target"), GoodInfo);
        row("redirected in a circle", redirection("/elsewhere"), {});
        row("redirected to an open way", redirection("http://example.org/target"), {});
        row("redirected to a file", redirection("file:///etc/hostname"), {});
    }

    void answersAreTakenOrRefused()
    {
        QFETCH(HttpServer::Answer, answer);
        HttpServer server(answer);
        m_checker->setHost(server.address());
        const VersionInfo found = check();
        QTEST(found, "expected");
        QCOMPARE(VersionChecker::LastVersion(), found);
        // Whatever came, the next check is made and understood.
        server.answer = HttpServer::whole(Good);
        QCOMPARE(check(), GoodInfo);
    }

    void floodIsCutOff()
    {
        const auto sent = std::make_shared<qint64>(0);
        HttpServer server([=](QTcpSocket *socket, const QByteArray &) {
            socket->write(HttpServer::head("200 OK", "") + Good);
            flood(socket, sent);
        });
        m_checker->setHost(server.address());
        QCOMPARE(check(), VersionInfo());
        QVERIFY2(*sent < SentWithoutLimit, qPrintable(QString::number(*sent)));
        server.close(); // nobody there
        QCOMPARE(check(), VersionInfo());
    }

    void helperGetsPostsAndTellsFailures()
    {
        HttpServer server(HttpServer::whole("[1, 2]"));
        HttpHelper *helper = HttpHelper::Instance();
        const QString url = server.address() + "/list"_L1;
        const QSignalSpy progress(helper, &HttpHelper::progress);
        QByteArray error = "old";
        QCOMPARE(helper->get(url, &error), QByteArray("[1, 2]"));
        QCOMPARE(error, QByteArray());
        QCOMPARE(progress.value(progress.size() - 1).value(0).toString(), url);
        QCOMPARE(helper->getJson(url).array().size(), 2);
        QCOMPARE(helper->postJson(url, {{u"a b"_s, u"1+1=2&ж"_s}, {u"c"_s, {}}}).array().size(), 2);
        const QByteArray request = server.requests.constLast();
        QVERIFY(request.startsWith("POST /list "));
        QVERIFY(request.toLower().contains("content-type: application/x-www-form-urlencoded\r\n"));
        QVERIFY(request.endsWith("\r\n\r\na%20b=1%2B1%3D2%26%D0%B6&c="));

        server.answer = HttpServer::whole("no", "404 Not Found");
        for (const QString &refused : {url, u"http://example.org"_s}) {
            error.clear();
            QCOMPARE(helper->get(refused, &error), QByteArray());
            QVERIFY(!error.isEmpty());
        }
    }
};

QTEST_GUILESS_MAIN(TestNetwork)
#include "tst_network.moc"
