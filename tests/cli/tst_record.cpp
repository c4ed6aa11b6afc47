#include "cli/clirun.h"

#include "core/experimentfolder.h"
#include "device/serialportmanager.h"
#include "rows.h"
#include "simulator/scenario.h"
#include "simulator/simulatedinstrument.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

enum ExitCodes { Done = 0, Failed = 1, NoInstrument = 3, LinkLost = 4 };

// So many times faster than a real instrument; five status messages a second become a hundred.
constexpr double Rate = 20.0;
constexpr double StepSeconds = 0.2;

Scenario parseScenario(QByteArray text)
{
    QBuffer buffer(&text);
    buffer.open(QIODevice::ReadOnly);
    return Scenario::read(buffer, u"test"_s).scenario;
}

QJsonObject eventNamed(const CliRun &run, const QString &name)
{
    for (const QJsonObject &event : run.events()) {
        if (event["event"_L1] == name)
            return event;
    }
    return {};
}

} // namespace

class TestRecord : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void cleanup()
    {
        SerialPortManager::instance().closeAll();
        SerialPortManager::instance().setProvider({});
    }

    void eventsTellTheExperimentInItsOrder()
    {
        startInstrument({}, "1 2 on\n5 2 off\n9 3 on\n");
        const CliRun run = record({u"--json"_s, u"--duration"_s, u"1"_s, u"--title"_s, u"Rat \"7\""_s,
                                   u"--comment"_s, u"второй день"_s});
        QCOMPARE(run.exitCode, Done);
        QStringList names = run.eventNames();
        names.removeAll(u"version"_s);
        QCOMPARE(names, QStringList({u"connected"_s, u"serial"_s, u"recording"_s, u"found"_s, u"fall"_s,
                                     u"found"_s, u"fall"_s, u"stopped"_s}));
        QCOMPARE(eventNamed(run, u"connected"_s)["port"_L1].toString(), m_instrument->path());
        QCOMPARE(eventNamed(run, u"serial"_s)["value"_L1].toString(), u"B42403101"_s);
        QCOMPARE(eventNamed(run, u"found"_s)["lane"_L1].toInt(), 2);
        QCOMPARE(eventNamed(run, u"fall"_s)["index"_L1].toInt(), 1);

        const QString folder = eventNamed(run, u"stopped"_s)["path"_L1].toString();
        QCOMPARE(folder, eventNamed(run, u"recording"_s)["path"_L1].toString());
        const QJsonObject experiment =
            QJsonDocument::fromJson(contents(folder + "/experiment.json"_L1))["experiment"_L1].toObject();
        QCOMPARE(experiment["title"_L1].toString(), u"Rat \"7\""_s);
        QCOMPARE(experiment["comment"_L1].toString(), u"второй день"_s);
        QCOMPARE(experiment["sn"_L1].toString(), u"B42403101"_s);
        const QJsonArray items = experiment["items"_L1].toArray();
        QCOMPARE(items.size(), 2);
        QCOMPARE(items.at(1)["index"_L1].toInt(), 2);
        // The rows are the fall events, and what detection gives for the log afterwards.
        for (const char *key : {"start", "end", "rotations", "rat"})
            QCOMPARE(items.at(0)[QLatin1StringView(key)], eventNamed(run, u"fall"_s)[QLatin1StringView(key)]);
        const QJsonArray replayed =
            runCli({u"replay"_s, u"--json"_s, folder + "/status.log"_L1}).json().array();
        QCOMPARE(replayed, items);
    }

    void everyLineSentStandsInTheLog()
    {
        const QByteArray sent = statusLog(4000, 5000, 7);
        SimulatedInstrumentOptions options;
        options.replayPath = m_folder->filePath(u"sent.log"_s);
        QVERIFY(writeFile(options.replayPath, sent));
        options.rate = 100;
        startInstrument(options, {});
        const CliRun run = record({u"--json"_s, u"--duration"_s, u"2"_s});
        QCOMPARE(run.exitCode, Done);
        const QByteArray log =
            contents(eventNamed(run, u"stopped"_s)["path"_L1].toString() + "/status.log"_L1);
        QVERIFY2(log.count('\n') > 500, qPrintable(QString::number(log.count('\n'))));
        QVERIFY(sent.contains(log));
    }

    void lostLinkEndsTheRecordingAndKeepsIt()
    {
        startInstrument({}, "1 1 on\n10 link off 1000\n");
        const CliRun run = record({u"--json"_s, u"--duration"_s, u"30"_s});
        QCOMPARE(run.exitCode, LinkLost);
        const QStringList names = run.eventNames();
        QCOMPARE(names.sliced(names.size() - 3), QStringList({u"fall"_s, u"disconnected"_s, u"stopped"_s}));
        const QString folder = eventNamed(run, u"stopped"_s)["path"_L1].toString();
        QVERIFY(contents(folder + "/status.log"_L1).count('\n') > 20);
        const QJsonDocument json = QJsonDocument::fromJson(contents(folder + "/experiment.json"_L1));
        QCOMPARE(json["experiment"_L1]["items"_L1].toArray().size(), 1);
    }

    void withoutInstrumentTheWaitEnds()
    {
        SerialPortManager::instance().setProvider([] { return QList<PortInfo>(); });
        const CliRun run = record({u"--wait"_s, u"0.2"_s});
        QCOMPARE(run.exitCode, NoInstrument);
        QVERIFY(QDir(m_folder->filePath(u"data/Records"_s)).isEmpty());
    }

    void blankInstrumentIsNumberedFirst()
    {
        SimulatedInstrumentOptions options;
        options.instrument.serialNumber.clear();
        startInstrument(options, "1 1 on\n");
        const CliRun run = record({u"--json"_s, u"--duration"_s, u"0.2"_s, u"--wait"_s, u"15"_s});
        QCOMPARE(run.exitCode, Done);
        QVERIFY(eventNamed(run, u"serial"_s)["value"_L1].toString().startsWith("B4"_L1));
    }

    void constantSpeedIsCommandedAndStopped_data()
    {
        const auto row = columns<QString, QString, QString>("words", "command", "mode");
        // 9.487179487179487 motor rotations a drum rotation, drums of 70 mm and 40 mm.
        row("rats, rpm", u"--speed 12 --unit rpm --rodent rats"_s, u"rotate=1.897"_s, u"irmode=r"_s);
        row("mice, cm/s", u"--speed 5 --unit cm/s --rodent mice"_s, u"rotate=3.775"_s, u"irmode=m"_s);
        row("top speed", u"--speed 30 --unit rpm"_s, u"rotate=4.744"_s, u"irmode=r"_s);
    }

    void constantSpeedIsCommandedAndStopped()
    {
        QFETCH(QString, words);
        startInstrument({}, "1 1 on\n");
        const CliRun run = record(QStringList{u"--duration"_s, u"0.3"_s} + words.split(u' '));
        QCOMPARE(run.exitCode, Done);
        QTEST(m_commands.filter(u"rotate="_s).value(0), "command");
        QCOMPARE(m_commands.filter(u"rotate="_s).constLast(), u"rotate=0.000"_s);
        QTEST(m_commands.filter(u"irmode="_s).constLast(), "mode");
    }

    void scriptDrivesTheDrumWithinOneStep()
    {
        const QString scripts = m_folder->filePath(u"data/Scripts"_s);
        QVERIFY(QDir().mkpath(scripts));
        QVERIFY(writeFile(scripts + "/Ramp.xml"_L1,
                          "<SpeedScript><DurationSeconds>10</DurationSeconds>"
                          "<Points>0.000:0.00\r\n10.000:20.00</Points></SpeedScript>"));
        SimulatedInstrumentOptions options;
        options.rate = 1;
        startInstrument(options, {});
        const CliRun run = record({u"--json"_s, u"--script"_s, u"Ramp"_s, u"--duration"_s, u"3"_s});
        QCOMPARE(run.exitCode, Done);
        QVERIFY(m_speeds.size() >= 10);
        QCOMPARE(m_speeds.constLast().second, 0.0);
        // Two more revolutions a minute each second, taken as the motor's radians per second. The first
        // command belongs to the second entry of the table, so to 0.4 s, and comes 0.2 s into the script.
        const qint64 firstMs = m_speeds.constFirst().first;
        constexpr double SpeedPerSecond = 2.0;
        constexpr double TwoPi = 6.283185307179586;
        for (const auto &[clockMs, speed] : m_speeds.sliced(0, m_speeds.size() - 2)) {
            const double seconds = double(clockMs - firstMs) / 1000.0 + 2 * StepSeconds;
            const double expected = seconds * SpeedPerSecond / TwoPi;
            QVERIFY2(std::abs(speed - expected) <= StepSeconds * SpeedPerSecond / TwoPi + 0.001,
                     qPrintable(u"%1 at %2 s, expected %3"_s.arg(speed).arg(seconds).arg(expected)));
        }
    }

    void unusableDataFolderIsTold()
    {
        const QString file = m_folder->filePath(u"a-file"_s);
        QVERIFY(writeFile(file, "x"));
        SerialPortManager::instance().setProvider([] { return QList<PortInfo>(); });
        const CliRun run = runCli({u"--data"_s, file, u"record"_s, u"--wait"_s, u"0.1"_s});
        QCOMPARE(run.exitCode, Failed);
        QVERIFY(run.err.contains(file));
    }

private:
    void startInstrument(SimulatedInstrumentOptions options, const QByteArray &scenario)
    {
        if (options.rate == 1.0 && !scenario.isNull())
            options.rate = Rate;
        if (!scenario.isNull())
            options.instrument.scenario = parseScenario(scenario);
        m_commands.clear();
        m_speeds.clear();
        m_instrument = std::make_unique<SimulatedInstrument>(options);
        connect(m_instrument.get(), &SimulatedInstrument::commandReceived, this,
                [this](const QString &command, Instrument::Outcome, qint64 clockMs) {
                    m_commands.append(command);
                    if (command.startsWith("rotate="_L1))
                        m_speeds.append({clockMs, command.sliced(7).toDouble()});
                });
        QVERIFY2(m_instrument->start(), qPrintable(m_instrument->errorString()));
        const PortInfo port{m_instrument->path(), m_instrument->path(), u"Instrument"_s, {}};
        SerialPortManager::instance().setProvider([port] { return QList<PortInfo>{port}; });
    }

    CliRun record(const QStringList &words)
    {
        return runCli(QStringList{u"--data"_s, m_folder->filePath(u"data"_s), u"record"_s} + words);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<SimulatedInstrument> m_instrument;
    QStringList m_commands;
    QList<std::pair<qint64, double>> m_speeds;
};

QTEST_GUILESS_MAIN(TestRecord)
#include "tst_record.moc"
