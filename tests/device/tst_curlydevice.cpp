#include "device/curlydevice.h"

#include "testline.h"

#include <QDir>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

/// A device of the text protocol that writes down what happens to it.
class PlainDevice : public CurlyDevice
{
public:
    PlainDevice()
        : CurlyDevice(nullptr)
    {
        connect(this, &CurlyDevice::connectedChanged, this,
                [this](bool connected) { log.append(connected ? u"changed on"_s : u"changed off"_s); });
        connect(this, &CurlyDevice::onConnected, this, [this] { log.append(u"connected"_s); });
        connect(this, &CurlyDevice::onDisconnected, this, [this] { log.append(u"disconnected"_s); });
        connect(this, &CurlyDevice::gotPortName, this,
                [this](const QString &name) { log.append(u"port "_s + name); });
    }

    // The base class tells of its end when the log is gone.
    ~PlainDevice() override { disconnect(); }

    QString deviceType() const override { return u"plain"_s; }
    QString newSerialNumber() const override { return {}; }
    QString greetingReply() const override { return u"iam"_s; }
    void onTextMessage(const QString &message) override { log.append(u"message "_s + message); }
    void onLinkUp() override { log.append(u"link up"_s); }
    QStringList take() { return std::exchange(log, {}); }

    QStringList log;
};

QSerialPort *heldPort(const TestLine &line)
{
    return SerialPortManager::instance().acquirePort(line.name, u"plain"_s);
}

qsizetype openDescriptors()
{
    return QDir(u"/proc/self/fd"_s).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size();
}

/// A device and one port, with an instrument at it that answers or keeps silent.
struct Bench
{
    explicit Bench(bool answers = true)
    {
        if (answers)
            line.answers.insert("{whois}", "{iam}");
        device.start();
    }

    bool connect()
    {
        const bool connected = QTest::qWaitFor([this] { return device.isConnected(); });
        device.take();
        line.take();
        return connected;
    }

    TestLine line{u"COM1"_s};
    TestPorts ports{{line.info()}};
    PlainDevice device;
};

} // namespace

class TestCurlyDevice : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLoggingCategory::setFilterRules(u"spinbar.link.debug=false"_s); }

    void takesThePortThatAnswers()
    {
        TestLine line(u"COM7"_s);
        line.answers.insert("{whois}", "noise\n{iam}{dropped}");
        const TestPorts ports({line.info()});
        PlainDevice device;
        device.start();
        QTRY_VERIFY(device.isConnected());
        QCOMPARE(device.take(), QStringList({u"changed on"_s, u"connected"_s, u"link up"_s, u"port COM7"_s}));
        QCOMPARE(device.portName(), u"COM7"_s);
        QCOMPARE(SerialPortManager::instance().availablePortNames(u"UP"_s), QStringList());
        line.terminal.write("{one}{tw");
        line.terminal.write("o}\xFF\n");
        QTRY_COMPARE(device.log.size(), 3);
        QCOMPARE(device.take(), QStringList({u"message one"_s, u"message two"_s, u"message \uFFFD"_s}));
    }

    void firstOfTwoAnswersWins()
    {
        TestLine first(u"COM2"_s);
        TestLine second(u"COM3"_s);
        const TestPorts ports({first.info(), second.info()});
        PlainDevice device;
        device.start();
        QVERIFY(first.waitFor("{whois}") && second.waitFor("{whois}"));
        // Both answers stand in the ports when the event loop next looks.
        first.terminal.write("{iam}");
        second.terminal.write("{iam}");
        QTRY_VERIFY(device.isConnected());
        QCOMPARE(device.take().count(u"connected"_s), 1);
        QCOMPARE(SerialPortManager::instance().availablePortNames(u"UP"_s),
                 QStringList(device.portName() == u"COM2" ? u"COM3"_s : u"COM2"_s));
    }

    void answerToTheSecondGreetingInTwoChunksCounts()
    {
        QElapsedTimer clock;
        clock.start();
        Bench bench(false);
        TestLine &line = bench.line;
        QVERIFY(line.waitFor("{whois}", 2));
        QVERIFY(clock.elapsed() >= 950);
        line.terminal.write("{i");
        QSignalSpy chunk(heldPort(line), &QSerialPort::readyRead);
        QVERIFY(chunk.wait());
        QVERIFY(!bench.device.isConnected());
        line.terminal.write("am}");
        QTRY_VERIFY(bench.device.isConnected());
    }

    void silentPortIsGreetedEveryOtherRound()
    {
        Bench bench(false);
        TestLine &line = bench.line;
        QVERIFY(line.waitFor("{whois}"));
        bench.device.connectionTimerHandler();
        // Claimed, still open, and no longer listened to.
        QSerialPort *port = heldPort(line);
        QVERIFY(port->isOpen());
        QCOMPARE(SerialPortManager::instance().availablePortNames(u"UP"_s), QStringList());
        line.terminal.write("{iam}");
        QTRY_VERIFY(port->bytesAvailable() > 0);
        QCoreApplication::processEvents();
        QVERIFY(!bench.device.isConnected());
        QCOMPARE(line.received.count("{whois}"), 1);
        bench.device.connectionTimerHandler();
        QVERIFY(line.waitFor("{whois}", 2));
        line.terminal.write("{iam}");
        QTRY_VERIFY(bench.device.isConnected());
    }

    void writesInOrderAndWhole()
    {
        Bench bench;
        PlainDevice &device = bench.device;
        device.send(u"never"_s);
        QTest::ignoreMessage(QtInfoMsg, "PORT closed COM-UNKNOWN");
        device.writeNow({}, "never", 0, true);
        QVERIFY(bench.connect());
        const QString one(126, u'a');
        const QString pieces(127, u'b');
        device.send(one);
        device.send(pieces);
        device.send(QString(128, u'c'));
        device.send(u"end"_s, 10);
        device.exchangeTimerHandler();
        QVERIFY(bench.line.waitFor("{end}"));
        QCOMPARE(bench.line.take(), '{' + one.toLatin1() + "}{" + pieces.toLatin1() + "}{end}");
        QVERIFY(device.isConnected());
        // What is not known yet is asked for at every tick.
        device.connectionTimerHandler();
        QVERIFY(bench.line.waitFor("{sn}{version}"));
    }

    void keepAliveFillsTheSilence()
    {
        Bench bench;
        QVERIFY(bench.connect());
        QElapsedTimer clock;
        clock.start();
        bench.device.setPing(u"p"_s, 200, false);
        for (int i = 0; i < 3; ++i) {
            QVERIFY(bench.line.waitFor("p"));
            QCOMPARE(bench.line.take(), QByteArray("p"));
        }
        // The first may come at once, the others are a period apart.
        QVERIFY(clock.elapsed() >= 390);
        bench.device.exchangeTimerHandler();
        bench.device.send(u"x"_s);
        bench.device.exchangeTimerHandler();
        bench.device.exchangeTimerHandler();
        QVERIFY(bench.line.waitFor("{x}"));
        QCOMPARE(bench.line.take(), QByteArray("{x}"));
    }

    void lostPortEndsTheLink_data()
    {
        QTest::addColumn<QString>("how");
        for (const char *how : {"error", "silence", "closed by others", "timeout of a wait"})
            QTest::newRow(how) << QString::fromLatin1(how);
    }

    void lostPortEndsTheLink()
    {
        QFETCH(QString, how);
        Bench bench;
        PlainDevice &device = bench.device;
        QVERIFY(bench.connect());
        const QPointer<QSerialPort> port = heldPort(bench.line);
        port->clearError();
        QCoreApplication::processEvents();
        QVERIFY(device.isConnected());
        if (how == "timeout of a wait"_L1) {
            QVERIFY(!port->waitForReadyRead(1));
        } else if (how == "closed by others"_L1) {
            SerialPortManager::instance().closeAll();
            QTRY_VERIFY(!port);
            device.connectionTimerHandler();
        } else {
            port->blockSignals(how == "silence"_L1);
            bench.line.terminal.close();
            if (how == "silence"_L1)
                device.connectionTimerHandler();
        }
        QTRY_VERIFY(!device.isConnected());
        QCOMPARE(device.take(), QStringList({u"changed off"_s, u"disconnected"_s}));
        QTRY_VERIFY(!port);
        QCOMPARE(device.portName(), u"COM1"_s);
        QTest::ignoreMessage(QtInfoMsg, "PORT closed COM1");
        device.send(u"lost"_s);
        device.exchangeTimerHandler();
        QCoreApplication::processEvents();
        QCOMPARE(device.take(), QStringList());
    }

    void whatWasReadOfAPortGivenUpIsDropped()
    {
        Bench bench;
        QVERIFY(bench.connect());
        // Behind the device's own handler, which is queued.
        connect(heldPort(bench.line), &QSerialPort::readyRead, this,
                [&bench] { bench.device.setEnabled(false); });
        QTest::failOnWarning(QRegularExpression(u"."_s));
        bench.line.terminal.write("{late}");
        QTRY_VERIFY(!bench.device.isConnected());
        QCoreApplication::processEvents();
        QCOMPARE(bench.device.take(), QStringList{u"disconnected"_s});
    }

    void portThatDidNotOpenIsTriedInTheNextRound()
    {
        TestLine line(u"COM1"_s);
        QSerialPort other(line.info().location);
        QVERIFY(other.open(QIODevice::ReadWrite));
        const TestPorts ports({line.info()});
        PlainDevice device;
        device.start();
        // Not looked up here, which would claim it: the round after claims, opens and greets it.
        other.close();
        device.connectionTimerHandler();
        QVERIFY(line.waitFor("{whois}"));
        line.terminal.write("{iam}");
        QTRY_VERIFY(device.isConnected());
    }

    void unplugWhileSearchingClosesThePortAndNothingElse()
    {
        Bench bench(false);
        TestLine &line = bench.line;
        QVERIFY(line.waitFor("{whois}"));
        QSerialPort *port = heldPort(line);
        line.terminal.close();
        QTRY_VERIFY(!port->isOpen());
        QCOMPARE(bench.device.take(), QStringList());
        QVERIFY(line.terminal.open());
        line.take();
        bench.ports.set({line.info()});
        bench.device.connectionTimerHandler();
        bench.device.connectionTimerHandler();
        QVERIFY(line.waitFor("{whois}"));
    }

    void switchedOffHoldsNoPort_data()
    {
        QTest::addColumn<int>("rounds");
        QTest::addColumn<bool>("connected");
        QTest::newRow("greeted") << 1 << false;
        QTest::newRow("in its round of rest") << 2 << false;
        QTest::newRow("connected") << 1 << true;
    }

    void switchedOffHoldsNoPort()
    {
        QFETCH(int, rounds);
        QFETCH(bool, connected);
        Bench bench(connected);
        PlainDevice &device = bench.device;
        for (int round = 1; round < rounds; ++round)
            device.connectionTimerHandler();
        QTRY_COMPARE(device.isConnected(), connected);
        device.take();
        const QPointer<QSerialPort> port = heldPort(bench.line);
        QVERIFY(port->isOpen());
        device.setEnabled(false);
        QVERIFY(!port->isOpen());
        QCOMPARE(device.take(), QStringList{u"disconnected"_s});
        QVERIFY(!device.isConnected());
        QTest::ignoreMessage(QtInfoMsg, "Can not connect");
        device.connectionTimerHandler();
        if (connected)
            QTest::ignoreMessage(QtInfoMsg, "PORT closed COM1");
        device.exchangeTimerHandler();
        QTRY_VERIFY(!port);
        QVERIFY(!bench.line.received.contains("stop"));
    }

    void thousandConnectionsLeaveNothingBehind()
    {
        QLoggingCategory::setFilterRules(u"spinbar.link=false"_s);
        TestLine line(u"COM1"_s);
        line.answers.insert("{whois}", "{iam}");
        TestPorts ports({line.info()});
        PlainDevice device;
        device.setEnabled(false);
        device.start();
        QSignalSpy connected(&device, &CurlyDevice::onConnected);
        QSignalSpy disconnected(&device, &CurlyDevice::onDisconnected);
        const qsizetype before = openDescriptors();
        device.setEnabled(true);
        for (int cycle = 0; cycle < 1000; ++cycle) {
            // The device's own tick may fall into a search and give its port a round of rest.
            while (!device.isConnected() && !connected.wait(200))
                device.connectionTimerHandler();
            if (cycle % 2 == 0) {
                device.setEnabled(false);
            } else {
                line.terminal.close();
                QVERIFY(disconnected.wait());
                QVERIFY(line.terminal.open());
                ports.set({line.info()});
            }
            device.setEnabled(true);
        }
        device.setEnabled(false);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(openDescriptors(), before);
        initTestCase();
    }
};

QTEST_GUILESS_MAIN(TestCurlyDevice)
#include "tst_curlydevice.moc"