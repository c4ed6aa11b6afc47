#include "service/devicewriter.h"

#include "device/testline.h"
#include "framework/common/globalconsole.h"
#include "rows.h"
#include "simulator/simulatedinstrument.h"

#include <QDate>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto ShortTime = 500ms;
const QString Com = u"COM7"_s;
constexpr auto Question = "{whois}{version}{sn}{getSettings}";

/// A writer, the console that it writes to, and all that it reads.
struct Bench
{
    explicit Bench(std::chrono::milliseconds listeningTime = DeviceWriter::ListeningTime)
        : writer(nullptr, listeningTime)
    {
        const GlobalConsole *console = GlobalConsole::Instance();
        QObject::connect(console, &GlobalConsole::newEntry, &writer,
                         [this](const QString &entry) { log += entry.section(u' ', 1); });
        QObject::connect(&writer, &DeviceWriter::serialNumberRead, &writer,
                         [this](const QString &text) { readings += "sn " + text; });
        QObject::connect(&writer, &DeviceWriter::versionRead, &writer,
                         [this](const QString &text) { readings += "version " + text; });
        QObject::connect(
            &writer, &DeviceWriter::parameterRead, &writer,
            [this](const QString &key, double value) { readings += key + ' ' + QString::number(value); });
    }

    /// The console's lines without their colours since the last call.
    QStringList takeLog()
    {
        static const QRegularExpression element(u"</?span[^>]*>"_s);
        return std::exchange(log, {}).replaceInStrings(element, {});
    }

    bool waitForEnd()
    {
        return QTest::qWaitFor([this] { return log.join(u' ').contains("End trans"_L1); });
    }

    QStringList log;
    QStringList readings;
    DeviceWriter writer;
};

QStringList sent(const QString &text)
{
    return {">>COM7: " + text, u"Starting transmission to COM7"_s,
            u"PORT OPEN"_s,    u"Written? true"_s,
            u"Written"_s,      u"MESSAGE WRITTEN"_s};
}

const QString End = u"End transmission"_s;
const QStringList Refused{u"Starting transmission to COM7"_s, u"Cannot connect to port COM7"_s, End};

} // namespace

class TestDeviceWriter : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLoggingCategory::setFilterRules(u"spinbar.*.debug=false"_s); }

    void instrumentIsReadAndWritten()
    {
        SimulatedInstrument instrument;
        QVERIFY(instrument.start());
        const TestPorts ports({{Com, instrument.path(), {}, {}}});
        {
            Bench bench(ShortTime);
            QVERIFY(bench.writer.readAll(Com) && bench.waitForEnd());
            QCOMPARE(bench.takeLog(), sent(Question)
                                          + QStringList({u"iamspinbar"_s, u"version=1.0"_s, u"sn=B42403101"_s,
                                                         u"MCC:1,MAC:1,MDC:1,CUR:10"_s, End}));
            QCOMPARE(bench.readings, QStringList({u"version 1.0"_s, u"sn B42403101"_s, u"MCC 1"_s, u"MAC 1"_s,
                                                  u"MDC 1"_s, u"CUR 10"_s}));
        }
        QSignalSpy heard(&instrument, &SimulatedInstrument::commandReceived);
        const QList<double> values{1.0512345, 0.5, 2, 12.5};
        for (qsizetype i = 0; i <= values.size(); ++i) {
            Bench bench;
            QVERIFY(i < values.size()
                        ? bench.writer.writeParameter(Com, DeviceWriter::parameters()[i], values[i])
                        : bench.writer.writeSerialNumber(Com, u"B42611101"_s));
            QVERIFY(heard.wait());
        }
        Bench bench;
        QVERIFY(bench.writer.readAll(Com));
        QTRY_COMPARE(bench.readings, QStringList({u"version 1.0"_s, u"sn B42611101"_s, u"MCC 1.05123"_s,
                                                  u"MAC 0.5"_s, u"MDC 2"_s, u"CUR 12.5"_s}));
    }

    void oneTransactionAtATime()
    {
        TestLine line(Com);
        const TestPorts ports({line.info()});
        Bench bench(ShortTime);
        QVERIFY(bench.writer.readAll(Com));
        QVERIFY(!bench.writer.readAll(Com));
        QVERIFY(!bench.writer.writeSerialNumber(Com, u"B1"_s));
        QVERIFY(bench.waitForEnd());
        QCOMPARE(bench.takeLog(), sent(Question) + QStringList(End));
        QCOMPARE(line.received, QByteArray(Question));
        QVERIFY(bench.writer.writeSerialNumber(Com, u"B1"_s));
    }

    void writtenPortStaysOpenUntilListeningGivesItUp()
    {
        TestLine line(Com);
        const TestPorts ports({line.info()});
        Bench bench(ShortTime);
        QVERIFY(bench.writer.writeSerialNumber(Com, u"<B>&"_s));
        QCOMPARE(bench.takeLog(), sent(u"{writesn=&lt;B>&amp;}"_s) + QStringList(End));
        QVERIFY(line.waitFor("{writesn=<B>&}"));
        QVERIFY(bench.writer.writeSerialNumber(Com, u"B2"_s));
        QCOMPARE(bench.takeLog(), QStringList(u">>COM7: {writesn=B2}"_s) + Refused);
        // Refused, but not busy: another one may wait for the port too, and none ends the other's.
        QVERIFY(bench.writer.readAll(Com) && bench.writer.readAll(Com));
        QTRY_COMPARE(bench.log.count(u"<span style='color: #3C0'>End transmission</span>"_s), 2);
        QVERIFY(!line.received.contains("whois"));
        bench.takeLog();
        QVERIFY(bench.writer.readAll(Com) && bench.waitForEnd());
        QVERIFY(line.waitFor(Question));
    }

    void missingPortIsTold()
    {
        const TestPorts ports;
        Bench bench;
        QVERIFY(bench.writer.readAll(u"COM7<b>"_s));
        QCOMPARE(bench.takeLog(),
                 QStringList({u">>COM7&lt;b>: {whois}{version}{sn}{getSettings}"_s, u"Cannot connect"_s}));
        QVERIFY(bench.writer.readAll(Com));
    }

    void answersAreReadWhateverComes_data()
    {
        const auto row = columns<QByteArray, QStringList>("answer", "readings");
        row("unknown name", "{MCC:1.05,MAC:0.9,NEW:3,CUR:12}", {u"MCC 1.05"_s, u"MAC 0.9"_s, u"CUR 12"_s});
        row("doubled", "{MCC:1}{MCC:1.5}\n{sn=B1}{sn=B2}",
            {u"MCC 1"_s, u"MCC 1.5"_s, u"sn B1"_s, u"sn B2"_s});
        row("out of range", "{MCC:-1,CUR:1e9}", {u"MCC -1"_s, u"CUR 1e+09"_s});
        row("no numbers", "{MCC:nan,MAC:inf,MDC:,CUR:1;5}{MCC:1e999,MAC:1:2,MDC,CUR:2}", {u"CUR 2"_s});
        row("another head", "{MAC:1,MCC:1}{ sn=B1 }{SN=B2}", {u"sn B1"_s});
        row("empty texts", "{sn=}{version=}{}", {u"sn "_s, u"version "_s});
        row("status only", "{S,1,2}{R,1}", {});
        row("silence", "", {});
        row("markup", "{<img src='x'>&lt;}", {});
    }

    void answersAreReadWhateverComes()
    {
        QFETCH(QByteArray, answer);
        QFETCH(QStringList, readings);
        TestLine line(Com);
        line.answers.insert("{whois}", answer);
        line.answers.insert("{getSettings}", "{version=last}");
        const TestPorts ports({line.info()});
        Bench bench;
        QVERIFY(bench.writer.readAll(Com));
        QTRY_COMPARE(bench.readings, readings + QStringList(u"version last"_s));
        QVERIFY(bench.log.filter(u"S,"_s).isEmpty() && bench.log.filter(u"<img"_s).isEmpty());
    }

    void cutAnswerIsForgotten()
    {
        TestLine line(Com);
        line.answers.insert("{whois}", "{sn=B1}{MCC:1.0");
        const TestPorts ports({line.info()});
        Bench bench(ShortTime);
        QVERIFY(bench.writer.readAll(Com) && bench.waitForEnd());
        bench.takeLog();
        line.answers["{whois}"] = "{sn=B2}";
        QVERIFY(bench.writer.readAll(Com));
        QTRY_COMPARE(bench.readings, QStringList({u"sn B1"_s, u"sn B2"_s}));
    }

    void portThatVanishesIsClosedAtOnce()
    {
        TestLine line(Com);
        line.answers.insert("{whois}", "{sn=B1}");
        TestPorts ports({line.info()});
        Bench bench(ShortTime);
        QVERIFY(bench.writer.readAll(Com));
        QTRY_COMPARE(bench.readings, QStringList(u"sn B1"_s));
        line.terminal.close();
        ports.set({});
        QVERIFY(bench.waitForEnd());
        QCOMPARE(bench.log.filter(u"Connection lost"_s).size(), 1);
        // Plugged in again it is there for the next one.
        QVERIFY(line.terminal.open());
        ports.set({line.info()});
        QVERIFY(bench.writer.readAll(Com));
        QTRY_COMPARE(bench.readings.size(), 2);
    }

    void portIsGivenUpWithTheWriter()
    {
        // While listening, after a write and after a refused write.
        for (int writes = 0; writes <= 2; ++writes) {
            TestLine line(Com);
            const TestPorts ports({line.info()});
            {
                Bench bench;
                for (int i = 0; i < writes; ++i)
                    QVERIFY(bench.writer.writeSerialNumber(Com, u"B1"_s));
                QVERIFY(writes > 0 || bench.writer.readAll(Com));
            }
            QSerialPort *port = SerialPortManager::instance().acquirePort(Com, u"Spinbar"_s);
            QVERIFY(port && port->open(QIODevice::ReadWrite));
        }
    }

    void choicesNamePortsAndDescriptions()
    {
        const QStringList choices = DeviceWriter::choices({{Com, {}, u"USB [x]"_s, {}},
                                                           {u"COM8"_s, {}, u"A Bluetooth link"_s, {}},
                                                           {u"ttyS0"_s, {}, {}, {}}});
        QCOMPARE(choices, QStringList({u"COM7[USB [x]]"_s, u"ttyS0[]"_s}));
        QCOMPARE(DeviceWriter::portName(choices[0]), Com);
        QCOMPARE(DeviceWriter::portName({}), QString());
        QCOMPARE(DeviceWriter::newSerialNumber(QDate(2024, 3, 31)), u"B42403101"_s);
    }
};

QTEST_GUILESS_MAIN(TestDeviceWriter)
#include "tst_devicewriter.moc"
