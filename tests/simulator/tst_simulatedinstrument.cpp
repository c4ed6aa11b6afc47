#include "simulator/simulatedinstrument.h"

#include "files.h"

#include "device/serialports.h"

#include <QBuffer>
#include <QSerialPort>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// The host's side of the line: what came, cut into messages.
class Host
{
public:
    explicit Host(const QString &path)
        : m_port(path)
    {
        QObject::connect(&m_port, &QSerialPort::readyRead, &m_port,
                         [this] { messages += m_parser.parseText(QString::fromUtf8(m_port.readAll())); });
        m_port.open(QIODevice::ReadWrite);
    }

    void write(const QByteArray &bytes) { m_port.write(bytes); }
    bool isCut() const { return SerialPorts::hasHungUp(m_port); }

    QStringList messages;

private:
    CurlyMessageParser m_parser;
    QSerialPort m_port;
};

SimulatedInstrumentOptions byHand(const QByteArray &scenario = {})
{
    SimulatedInstrumentOptions options;
    options.rate = SimulatedInstrumentOptions::ByHand;
    QBuffer text;
    text.setData(scenario);
    text.open(QIODevice::ReadOnly);
    options.instrument.scenario = Scenario::read(text, u"test"_s).scenario;
    return options;
}

} // namespace

class TestSimulatedInstrument : public QObject
{
    Q_OBJECT

private slots:
    void answersOverTheLineWhateverTheChunks()
    {
        SimulatedInstrument instrument(byHand());
        QSignalSpy commands(&instrument, &SimulatedInstrument::commandReceived);
        QVERIFY2(instrument.start(), qPrintable(instrument.errorString()));
        Host host(instrument.path());
        host.write("p{whois}{vers");
        QTRY_COMPARE(host.messages, QStringList(u"iamspinbar"_s));
        host.write(QByteArray(200'000, 'n') + "}pp{sn}\xff\xfe{unknown}{getSettings}");
        const QStringList expected{u"iamspinbar"_s, u"sn=B42403101"_s, u"MCC:1,MAC:1,MDC:1,CUR:10"_s};
        QTRY_COMPARE(host.messages, expected);
        QCOMPARE(commands.last()[0].toString(), u"getSettings"_s);
        QCOMPARE(commands.last()[2].toLongLong(), instrument.clockMs());
    }

    void scenarioSendsRawMessagesAndCutsTheLine()
    {
        QTemporaryDir folder;
        SimulatedInstrumentOptions options = byHand("0.2 send {half\n0.4 send hello\n0.6 link off 0.4");
        options.linkPath = folder.filePath(u"line"_s);
        SimulatedInstrument instrument(options);
        QSignalSpy cuts(&instrument, &SimulatedInstrument::linkChanged);
        QVERIFY(instrument.start());
        {
            Host host(options.linkPath);
            instrument.step();
            instrument.step();
            QTRY_COMPARE(host.messages.size(), 4);
            QCOMPARE(host.messages[0], u"half"_s);
            QCOMPARE(host.messages[2], u"hello"_s);
            instrument.step();
            QTRY_VERIFY(host.isCut());
        }
        QVERIFY(!QFile::exists(options.linkPath));
        const qint64 clock = instrument.clockMs();
        instrument.step();
        instrument.step();
        QCOMPARE(cuts.size(), 2);
        Host again(options.linkPath);
        instrument.step();
        QTRY_VERIFY(!again.messages.isEmpty());
        // Time went on while nobody could hear of it.
        QVERIFY(again.messages.last().endsWith(u',' + QString::number(clock + 600, 16).toUpper()));
    }

    void replaySendsTheRecordedFieldsAsTheyAre()
    {
        QTemporaryDir folder;
        SimulatedInstrumentOptions options = byHand();
        options.replayPath = folder.filePath(u"status.log"_s);
        QVERIFY(!SimulatedInstrument(options).start());
        QVERIFY(writeFile(options.replayPath, "S;1;;x;28;28;28;28;5;A\r\n\r\nS;0\r\n"
                                                  + QByteArray(1'000'000, '\0') + "\nno{good}\n"
                                                  + QByteArray(9000, '1')
                                                  + "\nS;1;0;0;28;28;28;28;7;FF\r\nS;end"));
        SimulatedInstrument instrument(options);
        QSignalSpy ended(&instrument, &SimulatedInstrument::replayEnded);
        QVERIFY(instrument.start());
        Host host(instrument.path());
        for (int i = 0; i < 10; ++i)
            instrument.step();
        QTRY_COMPARE(host.messages, QStringList({u"S,1,,x,28,28,28,28,5,A"_s, u"S,0"_s,
                                                 u"S,1,0,0,28,28,28,28,7,FF"_s, u"S,end"_s}));
        QCOMPARE(ended, QList<QVariantList>({{4, 4}}));
        QCOMPARE(instrument.clockMs(), 255);
        host.write("{whois}");
        QTRY_COMPARE(host.messages.size(), 5);
    }

    void statusComesAtTheAskedRateWithoutLossOrDrift()
    {
        SimulatedInstrumentOptions options;
        options.rate = 200;
        SimulatedInstrument instrument(options);
        QVERIFY(instrument.start());
        Host host(instrument.path());
        QElapsedTimer sinceStart;
        sinceStart.start();
        host.write("{statusOn}{statusOn}");
        QTRY_VERIFY(host.messages.size() >= 1000);
        // One a millisecond, never faster; how late a busy machine may be is not the instrument's matter.
        QVERIFY(sinceStart.elapsed() >= host.messages.size() - 1);
        QVERIFY(sinceStart.elapsed() < 3000);
        host.write("{stop}");
        QTRY_VERIFY(!instrument.instrument().isReporting());
        const qsizetype sent = (instrument.clockMs() - 5000) / Instrument::StepMs;
        QTRY_COMPARE(host.messages.size(), sent);
        for (qsizetype i = 0; i < sent; ++i) {
            const qint64 clock = host.messages[i].section(u',', -1).toLongLong(nullptr, 16);
            QCOMPARE(clock, 5000 + (i + 1) * Instrument::StepMs);
        }
        QCOMPARE(instrument.terminal().droppedMessages(), 0);
    }
};

QTEST_GUILESS_MAIN(TestSimulatedInstrument)
#include "tst_simulatedinstrument.moc"
