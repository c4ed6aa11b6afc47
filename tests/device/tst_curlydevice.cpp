#include "device/curlydevice.h"

#include "device/curlycodec.h"
#include "testline.h"

#include <QDir>
#include <QLoggingCategory>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

/// A device of the text protocol, or of the byte protocol, that writes down what happens to it.
class PlainDevice : public CurlyDevice
{
public:
    explicit PlainDevice(bool text = true, int portNumber = -1)
        : CurlyDevice(nullptr, portNumber)
        , m_text(text)
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
    bool usesTextProtocol() const override { return m_text; }
    int parity() const override { return m_text ? QSerialPort::NoParity : QSerialPort::EvenParity; }
    int baudRate() const override { return m_text ? 115200 : 125000; }
    QByteArray binaryGreeting() const override { return QByteArray::fromHex("F1000F"); }
    bool checkBinaryGreeting(const QByteArray &bytes) const override
    {
        return CurlyCodec::decodeFrame(bytes).startsWith('\xF1');
    }
    void onTextMessage(const QString &message) override { log.append(u"message "_s + message); }
    void onByteMessage(const QByteArray &message) override { log.append(u"%1 bytes"_s.arg(message.size())); }
    void onLinkUp() override { log.append(u"link up"_s); }
    QStringList take() { return std::exchange(log, {}); }

    QStringList log;

private:
    bool m_text;
};

QSerialPort *heldPort(const TestLine &line)
{
    return SerialPortManager::instance().acquirePort(line.name, u"plain"_s);
}

qsizetype openDescriptors()
{
    return QDir(u"/proc/self/fd"_s).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size();
}

const QStringList Taken{u"changed on"_s, u"connected"_s, u"link up"_s};

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
        QCOMPARE(device.take(), Taken + QStringList{u"port COM7"_s});
        QCOMPARE(device.portName(), u"COM7"_s);
        QCOMPARE(SerialPortManager::instance().availablePortNames(u"UP"_s), QStringList());
        line.terminal.write("{one}{tw");
        line.terminal.write("o}\xFF\n");
        QTRY_COMPARE(device.log.size(), 3);
        QCOMPARE(device.take(), QStringList({u"message one"_s, u"message two"_s, u"message \uFFFD"_s}));
    }

    void firstOfTwoAnswersWins()
    {
        TestLine silent(u"COM1"_s);
        TestLine first(u"COM2"_s);
        TestLine second(u"COM3"_s);
        const TestPorts ports({silent.info(), first.info(), second.info()});
        PlainDevice device;
        device.start();
        QVERIFY(silent.waitFor("{whois}") && first.waitFor("{whois}") && second.waitFor("{whois}"));
        const QPointer<QSerialPort> loser = heldPort(second);
        // Both answers stand in the ports when the event loop next looks.
        first.terminal.write("{iam}");
        second.terminal.write("{iam}");
        QTRY_VERIFY(device.isConnected());
        QVERIFY(device.portName() == u"COM2" || device.portName() == u"COM3");
        if (device.portName() == u"COM2")
            QTRY_VERIFY(!loser || !loser->isOpen());
        QCOMPARE(device.take().count(u"connected"_s), 1);
        QCOMPARE(SerialPortManager::instance().availablePortNames(u"UP"_s).size(), 2);
    }

    void answerToTheSecondGreetingInTwoChunksCounts()
    {
        TestLine line(u"COM1"_s);
        const TestPorts ports({line.info()});
        PlainDevice device;
        QElapsedTimer clock;
        clock.start();
        device.start();
        QVERIFY(line.waitFor("{whois}", 2));
        QVERIFY(clock.elapsed() >= 950);
        line.terminal.write("{i");
        QSerialPort *port = heldPort(line);
        QSignalSpy chunk(port, &QSerialPort::readyRead);
        QVERIFY(chunk.wait());
        QVERIFY(!device.isConnected());
        line.terminal.write("am}");
        QTRY_VERIFY(device.isConnected());
    }

    void silentPortIsGreetedEveryOtherRound()
    {
        TestLine line(u"COM1"_s);
        const TestPorts ports({line.info()});
        PlainDevice device;
        device.start();
        QVERIFY(line.waitFor("{whois}"));
        device.connectionTimerHandler();
        // Claimed, still open, and no longer listened to.
        QSerialPort *port = heldPort(line);
        QVERIFY(port->isOpen());
        QCOMPARE(SerialPortManager::instance().availablePortNames(u"UP"_s), QStringList());
        line.terminal.write("{iam}");
        QTRY_VERIFY(port->bytesAvailable() > 0);
        QCoreApplication::processEvents();
        QVERIFY(!device.isConnected());
        QCOMPARE(line.received.count("{whois}"), 1);
        device.connectionTimerHandler();
        QVERIFY(line.waitFor("{whois}", 2));
        line.terminal.write("{iam}");
        QTRY_VERIFY(device.isConnected());
    }

    void pinLeavesOneNumber_data()
    {
        QTest::addColumn<int>("pin");
        QTest::addColumn<bool>("tried");
        QTest::newRow("its own") << 7 << true;
        QTest::newRow("another") << 8 << false;
        QTest::newRow("none") << -1 << true;
    }

    void pinLeavesOneNumber()
    {
        QFETCH(int, pin);
        QFETCH(bool, tried);
        TestLine line(u"COM7"_s);
        TestLine bluetooth(u"COM9"_s);
        const TestPorts ports({line.info(), bluetooth.info(u"Bluetooth"_s)});
        PlainDevice device(true, pin);
        device.start();
        QCOMPARE(heldPort(line)->isOpen(), tried);
        QVERIFY(!heldPort(bluetooth)->isOpen());
    }

    void bytesGreetOnceAndTestEachChunkAlone()
    {
        TestLine line(u"COM1"_s);
        const TestPorts ports({line.info({}, u"FTDI"_s)});
        PlainDevice device(false);
        device.start();
        QVERIFY(line.waitFor(QByteArray::fromHex("7BF1000F7D")));
        QSerialPort *port = heldPort(line);
        QCOMPARE(port->parity(), QSerialPort::EvenParity);
        QCOMPARE(port->baudRate(), 125000);
        for (const char *refused : {"7B", "F17D", "7B7D", "7BF07D"}) {
            QSignalSpy chunk(port, &QSerialPort::readyRead);
            line.terminal.write(QByteArray::fromHex(refused));
            QVERIFY(chunk.wait());
            QVERIFY2(!device.isConnected(), refused);
        }
        line.terminal.write(QByteArray::fromHex("7B5CD17D"));
        QTRY_VERIFY(device.isConnected());
        device.take();
        line.terminal.write("{x}");
        QTRY_COMPARE(device.log, QStringList{u"0 bytes"_s});
    }

    void writesInOrderAndWhole()
    {
        TestLine line(u"COM1"_s);
        line.answers.insert("{whois}", "{iam}");
        const TestPorts ports({line.info()});
        PlainDevice device;
        device.send(u"never"_s);
        QTest::ignoreMessage(QtInfoMsg, "PORT closed COM-UNKNOWN");
        device.writeNow({}, "never", 0, true);
        device.start();
        QTRY_VERIFY(device.isConnected());
        line.take();
        const QString one(126, u'a');
        const QString pieces(127, u'b');
        device.send(one);
        device.send(pieces);
        device.send(QString(128, u'c'));
        device.send(u"end"_s, 10);
        device.exchangeTimerHandler();
        QVERIFY(line.waitFor("{end}"));
        QCOMPARE(line.take(), '{' + one.toLatin1() + "}{" + pieces.toLatin1() + "}{end}");
        QVERIFY(device.isConnected());
        // What is not known yet is asked for at every tick.
        device.connectionTimerHandler();
        QVERIFY(line.waitFor("{sn}{version}"));
    }

    void keepAliveFillsTheSilence()
    {
        TestLine line(u"COM1"_s);
        line.answers.insert("{whois}", "{iam}");
        const TestPorts ports({line.info()});
        PlainDevice device;
        device.start();
        QTRY_VERIFY(device.isConnected());
        QElapsedTimer clock;
        clock.start();
        line.take();
        device.setPing(u"p"_s, 200, false);
        for (int i = 0; i < 3; ++i) {
            QVERIFY(line.waitFor("p"));
            QCOMPARE(line.take(), QByteArray("p"));
        }
        // The first may come at once, the others are a period apart.
        QVERIFY(clock.elapsed() >= 390);
        device.exchangeTimerHandler();
        device.send(u"x"_s);
        device.exchangeTimerHandler();
        device.exchangeTimerHandler();
        QVERIFY(line.waitFor("{x}"));
        QCOMPARE(line.take(), QByteArray("{x}"));
    }

    void lostPortEndsTheLink_data()
    {
        QTest::addColumn<bool>("signalled");
        QTest::newRow("told by an error") << true;
        QTest::newRow("found at the tick") << false;
    }

    void lostPortEndsTheLink()
    {
        QFETCH(bool, signalled);
        TestLine line(u"COM1"_s);
        line.answers.insert("{whois}", "{iam}");
        const TestPorts ports({line.info()});
        PlainDevice device;
        device.start();
        QTRY_VERIFY(device.isConnected());
        device.take();
        const QPointer<QSerialPort> port = heldPort(line);
        port->blockSignals(!signalled);
        line.terminal.close();
        if (signalled)
            QTRY_VERIFY(!device.isConnected());
        else
            device.connectionTimerHandler();
        QCOMPARE(device.take(), QStringList({u"changed off"_s, u"disconnected"_s}));
        QTRY_VERIFY(!port);
        QCOMPARE(device.portName(), u"COM1"_s);
        QTest::ignoreMessage(QtInfoMsg, "PORT closed COM1");
        device.send(u"lost"_s);
        device.exchangeTimerHandler();
        QCoreApplication::processEvents();
        QCOMPARE(device.take(), QStringList());
    }

    void anyErrorEndsTheLinkButNoErrorDoesNot()
    {
        TestLine line(u"COM1"_s);
        line.answers.insert("{whois}", "{iam}");
        const TestPorts ports({line.info()});
        PlainDevice device;
        device.start();
        QTRY_VERIFY(device.isConnected());
        QSerialPort *port = heldPort(line);
        device.take();
        port->clearError();
        QCoreApplication::processEvents();
        QVERIFY(device.isConnected());
        // Harmless by itself: a wait that times out.
        QVERIFY(!port->waitForReadyRead(1));
        QTRY_VERIFY(!device.isConnected());
        QCOMPARE(device.take(), QStringList({u"changed off"_s, u"disconnected"_s}));
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
        TestLine line(u"COM1"_s);
        TestPorts ports({line.info()});
        PlainDevice device;
        device.start();
        QVERIFY(line.waitFor("{whois}"));
        QSerialPort *port = heldPort(line);
        line.terminal.close();
        QTRY_VERIFY(!port->isOpen());
        QCOMPARE(device.take(), QStringList());
        QVERIFY(line.terminal.open());
        line.take();
        ports.set({line.info()});
        device.connectionTimerHandler();
        device.connectionTimerHandler();
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
        TestLine line(u"COM1"_s);
        if (connected)
            line.answers.insert("{whois}", "{iam}");
        const TestPorts ports({line.info()});
        PlainDevice device;
        device.start();
        for (int round = 1; round < rounds; ++round)
            device.connectionTimerHandler();
        QTRY_COMPARE(device.isConnected(), connected);
        device.take();
        const QPointer<QSerialPort> port = heldPort(line);
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
        QVERIFY(!line.received.contains("stop"));
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

    void destructionGivesUpThePort()
    {
        TestLine line(u"COM1"_s);
        line.answers.insert("{whois}", "{iam}");
        const TestPorts ports({line.info()});
        QPointer<QSerialPort> port;
        {
            PlainDevice device;
            device.start();
            QTRY_VERIFY(device.isConnected());
            port = heldPort(line);
        }
        QVERIFY(!port || !port->isOpen());
        QCOMPARE(SerialPortManager::instance().availablePortNames(u"UP"_s), QStringList{u"COM1"_s});
    }
};

QTEST_GUILESS_MAIN(TestCurlyDevice)
#include "tst_curlydevice.moc"
