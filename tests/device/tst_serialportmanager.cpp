#include "device/serialportmanager.h"

#include "rows.h"
#include "testline.h"

#include <QPointer>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

class TestSerialPortManager : public QObject
{
    Q_OBJECT

private slots:
    void firstAcquireCreatesAndTheSecondClaims()
    {
        const TestPorts ports({{u"A"_s, u"/a"_s, {}, {}}, {u"B"_s, u"/b"_s, {}, {}}});
        SerialPortManager &manager = SerialPortManager::instance();
        QSerialPort *port = manager.acquirePort(u"A"_s, u"link"_s);
        QVERIFY(port);
        QCOMPARE(manager.availablePortNames(u"UP"_s), QStringList({u"A"_s, u"B"_s}));
        // Without an owner it goes to whoever calls next.
        QCOMPARE(manager.acquirePort(u"A"_s, u"UP"_s), port);
        QCOMPARE(manager.acquirePort(u"A"_s, u"UP"_s), port);
        QCOMPARE(manager.acquirePort(u"A"_s, u"link"_s), nullptr);
        QCOMPARE(manager.acquireListedPort({u"A"_s, u"/a"_s, {}, {}}, u"link"_s), nullptr);
        QCOMPARE(manager.availablePortNames(u"link"_s), QStringList{u"B"_s});
        QCOMPARE(manager.availablePortNames(u"UP"_s), QStringList({u"A"_s, u"B"_s}));
        QCOMPARE(manager.acquirePort(u"C"_s, u"UP"_s), nullptr);
    }

    void releasesWhatTheOwnerHolds()
    {
        TestLine line(u"A"_s);
        const TestPorts ports({line.info(), {u"B"_s, u"/b"_s, {}, {}}});
        SerialPortManager &manager = SerialPortManager::instance();
        const QPointer<QSerialPort> port = manager.acquirePort(u"A"_s, u"link"_s);
        QVERIFY(port->open(QIODevice::ReadWrite));
        manager.releaseOwner(u"link"_s);
        manager.releaseOwner(QString());
        QVERIFY2(port->isOpen(), "a port without an owner stays");
        QCOMPARE(manager.acquirePort(u"A"_s, u"link"_s), port.data());
        manager.releasePort(u"A"_s, u"UP"_s);
        QVERIFY2(port->isOpen(), "held by another owner");
        manager.releaseOwner(u"link"_s);
        QVERIFY(!port->isOpen());
        QCOMPARE_NE(manager.acquirePort(u"A"_s, u"link"_s), port.data());
        QTRY_VERIFY2(!port, "released ports are freed");
    }

    void releaseOfAnUnheldNameLeavesNothing()
    {
        const TestPorts ports({{u"A"_s, u"/a"_s, {}, {}}});
        SerialPortManager &manager = SerialPortManager::instance();
        manager.releasePort(u"A"_s, u"link"_s);
        const QPointer<QSerialPort> port = manager.acquirePort(u"A"_s, u"link"_s);
        manager.closeAll();
        QTRY_VERIFY(!port);
    }

    void portsOfTheEnvironmentStandBehindTheSystems()
    {
        QTemporaryDir folder;
        TestLine line(u"unused"_s);
        const QString link = folder.filePath(u"tty one"_s);
        const QString system = line.terminal.devicePath();
        QVERIFY(QFile::link(system, link));
        qputenv("SPINBAR_SERIAL_PORTS",
                (link + u";relative;/no/such/port;;"_s + system + u';' + link).toLocal8Bit());
        const QList<PortInfo> ports = SerialPorts::listed();
        qputenv("SPINBAR_SERIAL_PORTS", "");
        const QList<PortInfo> systemPorts = SerialPorts::listed();
        QCOMPARE(ports.first(systemPorts.size()), systemPorts);
        const QList<PortInfo> expected{{link, link, u"Additional port"_s, {}},
                                       {system.mid(5), system, u"Additional port"_s, {}}};
        QVERIFY(ports.sliced(systemPorts.size()) == expected);
    }

    void listTakenAheadServesOnce()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath(u"port"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        qputenv("SPINBAR_SERIAL_PORTS", file.fileName().toLocal8Bit());
        SerialPortManager &manager = SerialPortManager::instance();
        manager.setProvider({});
        const QStringList listed = manager.availablePortNames({});
        QCOMPARE(listed.filter(file.fileName()).size(), 1);
        manager.listAhead();
        QCOMPARE(manager.availablePortNames({}), listed);
        QVERIFY(file.remove());
        QCOMPARE(manager.availablePortNames({}).size(), listed.size() - 1);
        qputenv("SPINBAR_SERIAL_PORTS", "");
    }

    void numbersAreStableAndUnique()
    {
        QCOMPARE(SerialPorts::number(u"COM7"_s), 7);
        QCOMPARE(SerialPorts::number(u"COM256"_s), 256);
#ifndef Q_OS_WIN
        QSet<int> numbers;
        const QStringList names{u"ttyUSB0"_s, u"ttyUSB1"_s, u"pts/7"_s, u"7"_s, u"COM"_s, u"/tmp/COM7"_s};
        for (const QString &name : names) {
            const int number = SerialPorts::number(name);
            QVERIFY(number > 4096);
            numbers.insert(number);
        }
        QCOMPARE(numbers.size(), names.size());
        QCOMPARE(SerialPorts::number(u"ttyUSB0"_s), *std::min_element(numbers.begin(), numbers.end()));
#endif
    }

    void filterKeepsCandidates_data()
    {
        const auto row =
            columns<QString, QString, bool, bool>("description", "manufacturer", "asText", "asBytes");
        row("plain", u"USB-SERIAL CH340"_s, u"wch.cn"_s, true, true);
        row("FTDI", u"USB Serial Port"_s, u"FTDI"_s, false, true);
        row("FTDI only as the whole name", u"FTDI"_s, u"FTDI Ltd"_s, true, true);
        row("main board", u"Последовательный порт (1)"_s, u"FTD"_s, false, false);
        row("lower case", u"последовательный порт"_s, {}, true, true);
        row("Bluetooth", u"Standard Serial over Bluetooth link"_s, {}, false, false);
        row("bluetooth", u"bluetooth"_s, {}, true, true);
    }

    void filterKeepsCandidates()
    {
        QFETCH(QString, description);
        QFETCH(QString, manufacturer);
        const PortInfo port{u"COM3"_s, u"COM3"_s, description, manufacturer};
        QTEST(SerialPorts::isCandidate(port, true), "asText");
        QTEST(SerialPorts::isCandidate(port, false), "asBytes");
    }
};

QTEST_GUILESS_MAIN(TestSerialPortManager)
#include "tst_serialportmanager.moc"
