#include "framework/common/versionchecker.h"
#include "framework/common/widgets/newversionbutton.h"
#include "framework/common/widgets/newversionmenuaction.h"

#include "framework/common/httpserver.h"

#include <QDesktopServices>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTextDocument>

using namespace Qt::StringLiterals;

class TestNewVersion : public QObject
{
    Q_OBJECT

    qint64 m_now = 1'000;
    QList<QUrl> m_opened;
    HttpServer m_server;

    /// True when the next check has given this answer and everybody was told.
    bool check(const QJsonObject &answer)
    {
        m_server.answer = HttpServer::whole(QJsonDocument(answer).toJson());
        m_now += 10;
        QSignalSpy found(VersionChecker::Instance(), &VersionChecker::versionFound);
        VersionChecker::FindNewVersionAsync();
        const bool isFound = found.wait();
        QCoreApplication::processEvents();
        return isFound;
    }

public slots:
    void open(const QUrl &url) { m_opened += url; }

private slots:
    void initTestCase()
    {
        QCoreApplication::setApplicationName(u"Spinbar"_s);
        VersionChecker::Instance()->setHost({});
        VersionChecker::Instance()->setClock([this] { return m_now; });
        for (const QString &scheme : {u"https"_s, u"http"_s, u"file"_s, u"javascript"_s})
            QDesktopServices::setUrlHandler(scheme, this, "open");
    }

    void buttonShowsWhileThereIsANewVersion()
    {
        const NewVersionButton silent(u"New version "_s, {}, nullptr);
        QVERIFY(silent.button()->isHidden());
        QCOMPARE(VersionChecker::Instance()->intervalMs(), 0);

        VersionChecker::Instance()->setHost(m_server.address());
        m_server.answer = HttpServer::whole("{\"valid\": true, \"version\": \"2.5\"}");
        NewVersionButton button({}, u"QPushButton { color: red; }"_s, nullptr);
        button.show();
        QVERIFY(!button.button()->isVisible());
        QCOMPARE(VersionChecker::Instance()->intervalMs(), 600'000);
        QSignalSpy changed(&button, &NewVersionButton::onHasNewVersionChanged);
        QVERIFY(changed.wait()); // it asks by itself
        QVERIFY(button.button()->isVisible());
        QCOMPARE(button.button()->text(), u"Spinbar 2.5"_s);
        button.setPreliminaryText(u"New "_s);
        QCOMPARE(button.button()->text(), u"New 2.5"_s);

        const NewVersionButton second(u"Also "_s, {}, nullptr);
        const NewVersionMenuAction action(u"Menu "_s, nullptr);
        QVERIFY(!second.button()->isHidden() && action.isVisible());
        QCOMPARE(action.text(), u"Menu 2.5"_s);
        QCOMPARE(m_server.requests.size(), 1);

        QVERIFY(check({}));
        QVERIFY(button.button()->isHidden() && second.button()->isHidden() && !action.isVisible());
        QCOMPARE(changed.constLast().at(0).toBool(), false);
    }

    void onlyPagesOfTheWebAreOpened()
    {
        const NewVersionButton button({}, {}, nullptr);
        for (const QString &link :
             {u"https://example.org/a?b=c"_s, u"http://example.org/"_s, u"file:///etc/hostname"_s,
              u"javascript:alert(1)"_s, u"/usr/bin/true"_s, u""_s}) {
            QVERIFY(check({{u"valid"_s, true}, {u"version"_s, u"2.5"_s}, {u"link"_s, link}}));
            m_opened.clear();
            button.button()->click();
            QCOMPARE(m_opened, link.startsWith("http"_L1) ? QList<QUrl>{QUrl(link)} : QList<QUrl>());
        }
    }

    void versionIsOneShortLine()
    {
        const NewVersionButton button(u"N "_s, {}, nullptr);
        const QString version = u" 2.5\n<b>R&D</b>"_s + QString(500, 'x'_L1);
        QVERIFY(check({{u"valid"_s, true}, {u"version"_s, version}}));
        const QString text = button.button()->text();
        QCOMPARE(text.size(), 42);
        QVERIFY(text.startsWith("N 2.5 bRD/bx"_L1));
        QVERIFY(!Qt::mightBeRichText(button.button()->toolTip()));
    }
};

QTEST_MAIN(TestNewVersion)
#include "tst_newversion.moc"
