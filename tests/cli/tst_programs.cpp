#include "core/spinbarrecord.h"
#include "files.h"
#include "program.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int FailedCode = 1;

QString simulatorPath()
{
    return qEnvironmentVariable("SPINBAR_SIMULATOR");
}

QString cliPath()
{
    return qEnvironmentVariable("SPINBAR_CLI");
}

} // namespace

class TestPrograms : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_environment = QProcessEnvironment::systemEnvironment();
        m_environment.insert(u"SPINBAR_SERIAL_PORTS"_s, port());
    }

    void interruptEndsTheRecordingInTheOrdinaryWay()
    {
        Program simulator(simulatorPath(), {u"--link"_s, port(), u"--rate"_s, u"20"_s}, m_environment);
        QVERIFY(simulator.waitForText("ready " + port().toUtf8() + '\n'));
        Program recorder(cliPath(), recordArguments(), m_environment);
        QVERIFY(recorder.waitForText(R"("event":"fall")"));
        recorder.signal(SIGINT);
        QVERIFY(recorder.waitForText(R"("event":"stopped")"));
        QVERIFY(recorder.waitForFinished(Program::TimeoutMs));
        QCOMPARE(recorder.exitCode(), 0);
        SpinbarRecord record(recordedFolder(), QDateTime::currentDateTime());
        QVERIFY(record.load());
        QVERIFY(!record.rawItems().isEmpty());
        QVERIFY(record.firstDeviceTime() > 0);

        simulator.signal(SIGTERM);
        QVERIFY(simulator.waitForFinished(Program::TimeoutMs));
        QCOMPARE(simulator.exitCode(), 0);
        QVERIFY(!QFileInfo(port()).isSymLink());
    }

    void fullDiskIsToldAndKeepsWhatIsThere()
    {
        Program simulator(simulatorPath(), {u"--link"_s, port(), u"--rate"_s, u"20"_s}, m_environment);
        QVERIFY(simulator.waitForText("ready "));
        // A limit on the size of files refuses a write as a full disk does: in the middle of a line.
        QProcess recorder;
        recorder.setProcessEnvironment(m_environment);
        const QString limited = u"trap '' XFSZ; ulimit -f 2; exec \"$0\" \"$@\""_s;
        recorder.start(u"sh"_s, QStringList{u"-c"_s, limited, cliPath()} + recordArguments()
                                    + QStringList{u"--duration"_s, u"3"_s});
        QVERIFY(recorder.waitForFinished(Program::TimeoutMs));
        QCOMPARE(recorder.exitCode(), FailedCode);
        QVERIFY(recorder.readAllStandardError().contains(recordedFolder().toUtf8()
                                                         + "status.log': File too large"));
        const QByteArray log = contents(recordedFolder() + "status.log"_L1);
        QVERIFY(log.size() > 900 && log.size() <= 1024 && log.endsWith("\r\n"));
        // The rows of the last save that found room.
        QByteArray rows = recorder.readAllStandardOutput();
        SpinbarRecord record(recordedFolder(), QDateTime::currentDateTime());
        QVERIFY(record.load());
        QVERIFY(!record.rawItems().isEmpty() && record.rawItems().size() <= rows.count("\"fall\""));
    }

    void killedRecorderLosesAtMostTheLineInFlight()
    {
        Program simulator(simulatorPath(), {u"--link"_s, port(), u"--rate"_s, u"200"_s}, m_environment);
        QVERIFY(simulator.waitForText("ready "));
        Program recorder(cliPath(), recordArguments(), m_environment);
        QVERIFY(recorder.waitForText(R"("event":"fall")"));
        recorder.signal(SIGKILL);
        QVERIFY(recorder.waitForFinished(Program::TimeoutMs));

        SpinbarRecord record(recordedFolder(), QDateTime::currentDateTime());
        QVERIFY(record.load());
        QVERIFY(!record.rawItems().isEmpty());
        QVERIFY(contents(recordedFolder() + "status.log"_L1).count('\n') >= 3);
        // Whole lines up to the end of the last fall, each one period behind the one before.
        QVERIFY(record.durationSeconds() * 1000 >= double(record.normalizedItems().constLast().end));
        const auto &samples = record.counters().samples();
        for (std::size_t i = 1; i < samples.size(); ++i)
            QCOMPARE(samples[i].timeMs - samples[i - 1].timeMs, qint64(SpinbarRecord::StatusPeriodMs));
    }

    void messagesFollowTheLanguage()
    {
        QProcess program;
        program.start(cliPath(),
                      {u"--language"_s, u"ru_RU"_s, u"--data"_s, m_folder->path(), u"table"_s, u"gone"_s});
        QVERIFY(program.waitForFinished(Program::TimeoutMs));
        QCOMPARE(program.exitCode(), 1);
        QCOMPARE(QString::fromUtf8(program.readAllStandardError()).trimmed(),
                 u"spinbar-cli: «gone»: нет такого эксперимента"_s);
    }

private:
    QString port() const { return m_folder->filePath(u"instrument"_s); }

    QStringList recordArguments() const
    {
        return {u"--data"_s,  m_folder->path(), u"record"_s, u"--json"_s,
                u"--speed"_s, u"30"_s,          u"--unit"_s, u"rpm"_s};
    }

    QString recordedFolder() const
    {
        const QDir records(m_folder->filePath(u"Records"_s));
        return records.filePath(records.entryList(QDir::Dirs | QDir::NoDotAndDotDot).value(0)) + '/'_L1;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QProcessEnvironment m_environment;
};

QTEST_GUILESS_MAIN(TestPrograms)
#include "tst_programs.moc"
