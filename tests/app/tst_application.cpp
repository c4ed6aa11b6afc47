#include "core/spinbarrecord.h"
#include "files.h"
#include "program.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// Times faster than the real instrument.
constexpr int Rate = 20;
constexpr int RunMs = 30'000;
constexpr int PauseMs = 20'000;
constexpr int FirstLane = 0;
constexpr int ThirdLane = 2;
/// Two status messages.
constexpr int ToleranceMs = 400;
/// Drum rotations a second at 2.157 motor rotations a second, which is 5 cm a second on the rats' drum.
constexpr double DrumSpeed = 2.157 / 9.487179487179487;
/// Three other page buttons, rats or mice, calibration, grid slider and box, unit, the two tabs, speed
/// slider.
constexpr int TabsFromDeviceButtonToSpeed = 11;

/// One rat that falls again and again, whenever the recording begins, and one that never does.
QByteArray scenario()
{
    constexpr int Runs = 100;
    QByteArray lines = "0 3 on\n";
    for (int run = 0; run < Runs; ++run) {
        const int start = run * (RunMs + PauseMs) / 1000;
        lines += QByteArray::number(start) + " 1 on\n";
        lines += QByteArray::number(start + RunMs / 1000) + " 1 off\n";
    }
    return lines;
}

/// A program that runs by the same name elsewhere on the machine would keep the tested one from starting.
/// Where the system allows it, the tested one is started where no other process is seen.
QStringList aloneIfPossible()
{
    const QStringList words{u"unshare"_s, u"--pid"_s, u"--fork"_s, u"--mount-proc"_s};
    return QProcess::execute(words.constFirst(), words.mid(1) + QStringList(u"true"_s)) == 0 ? words
                                                                                             : QStringList();
}

} // namespace

/// The installed program as a user has it: a window, a keyboard, an instrument on a line, files.
class TestApplication : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_environment = QProcessEnvironment::systemEnvironment();
        m_environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
        m_environment.insert(u"SPINBAR_SERIAL_PORTS"_s, port());
        m_environment.insert(u"XDG_DATA_HOME"_s, m_folder.path());
        Program install(qEnvironmentVariable("SPINBAR_CMAKE"),
                        {u"--install"_s, qEnvironmentVariable("SPINBAR_BUILD_FOLDER"), u"--prefix"_s,
                         m_folder.filePath(u"prefix"_s)},
                        m_environment);
        QVERIFY(install.waitForFinished(Program::TimeoutMs));
        QCOMPARE(install.exitCode(), 0);
        startDisplay();
    }

    void experimentIsRecordedByKeyboard()
    {
        const QString scenarioPath = m_folder.filePath(u"scenario"_s);
        QVERIFY(writeFile(scenarioPath, scenario()));
        Program simulator(qEnvironmentVariable("SPINBAR_SIMULATOR"),
                          {u"--link"_s, port(), u"--rate"_s, QString::number(Rate), u"--scenario"_s,
                           scenarioPath, u"--verbose"_s},
                          m_environment, QProcess::MergedChannels);
        QVERIFY(simulator.waitForText("ready "));
        QStringList command = aloneIfPossible() + QStringList(m_folder.filePath(u"prefix/bin/spinbar"_s));
        const QString path = command.takeFirst();
        Program spinbar(path, command, m_environment);
        QVERIFY(spinbar.waitForStarted());
        QVERIFY(simulator.waitForText(" statusOn\n"));

        QVERIFY(setSpeed(simulator));
        QVERIFY(press({u"Tab"_s, u"space"_s})); // the record button
        QString folder;
        QTRY_VERIFY_WITH_TIMEOUT(!(folder = recordedFolder()).isEmpty(), Program::TimeoutMs);
        QTRY_VERIFY_WITH_TIMEOUT(rowsOnDisk(folder) >= 2, Program::TimeoutMs);
        QVERIFY(press({u"alt+F4"_s}));
        QVERIFY(spinbar.waitForFinished(Program::TimeoutMs));
        QCOMPARE(spinbar.exitCode(), 0);
        checkFiles(folder);
    }

private:
    QString port() const { return m_folder.filePath(u"instrument"_s); }

    void startDisplay()
    {
        m_display = std::make_unique<Program>(qEnvironmentVariable("SPINBAR_XVFB"),
                                              QStringList{u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s,
                                                          u"1280x900x24"_s, u"-nolisten"_s, u"tcp"_s},
                                              m_environment);
        QVERIFY(m_display->waitForText("\n"));
        m_environment.insert(u"DISPLAY"_s, ':'_L1 + QString::fromLatin1(m_display->output).trimmed());
        m_windowManager = std::make_unique<Program>(
            qEnvironmentVariable("SPINBAR_OPENBOX"),
            QStringList{u"--sm-disable"_s, u"--startup"_s, u"echo started"_s}, m_environment);
        QVERIFY(m_windowManager->waitForText("started"));
    }

    bool xdotool(const QStringList &arguments) const
    {
        Program program(qEnvironmentVariable("SPINBAR_XDOTOOL"), arguments, m_environment);
        return program.waitForFinished(Program::TimeoutMs) && program.exitCode() == 0;
    }

    bool press(const QStringList &keys) const { return xdotool(QStringList(u"key"_s) + keys); }

    /// 5 cm/s, once the page is ready for it, which only the instrument can tell.
    bool setSpeed(Program &simulator) const
    {
        constexpr int Attempts = 10;
        const QStringList deviceButton{u"search"_s,    u"--sync"_s,    u"--onlyvisible"_s, u"--name"_s,
                                       u"^Spinbar "_s, u"mousemove"_s, u"--window"_s,      u"%1"_s,
                                       u"40"_s,        u"30"_s,        u"click"_s,         u"1"_s};
        const QStringList keys =
            QStringList(TabsFromDeviceButtonToSpeed, u"Tab"_s) + QStringList{u"ctrl+a"_s, u"5"_s};
        for (int attempt = 0; attempt < Attempts; ++attempt) {
            if (!xdotool(deviceButton) || !press(keys))
                return false;
            if (simulator.waitForText(" rotate=2.157\n", 1000))
                return true;
        }
        return false;
    }

    QString recordedFolder() const
    {
        const QDir records(m_folder.filePath(u"Spinbar/Records"_s));
        const QStringList folders = records.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        return folders.isEmpty() ? QString() : records.filePath(folders.constFirst()) + '/'_L1;
    }

    static qsizetype rowsOnDisk(const QString &folder)
    {
        SpinbarRecord record(folder, {});
        return record.load() ? record.rawItems().size() : 0;
    }

    /// What the instrument did is on the disk, no more and no less.
    static void checkFiles(const QString &folder)
    {
        SpinbarRecord record(folder, {});
        QVERIFY(record.load());
        QCOMPARE(record.sn(), u"B42403101"_s);
        const QList<ExperimentItem> rows = record.rawItems();
        // The recording began anywhere in the first run; the second is whole.
        const ExperimentItem &run = rows.at(1);
        QCOMPARE(run.index, FirstLane);
        QVERIFY2(std::abs(run.end - run.start - RunMs) <= ToleranceMs,
                 qPrintable(QString::number(run.end - run.start)));
        // Rotations count from the third sample that sees the rat until the fall is certain.
        const double speed = run.rotations / double(run.end - run.start - 600 + 2000);
        QVERIFY2(std::abs(speed / DrumSpeed - 1) < 0.01, qPrintable(QString::number(speed)));
        // The rat that was still running when the window closed.
        QCOMPARE(rows.constLast().index, ThirdLane);

        record.loadStatus(true);
        const auto &samples = record.counters().samples();
        QVERIFY(samples.front().timeMs <= rows.constFirst().start);
        QVERIFY(samples.back().timeMs >= rows.constLast().end);
        for (std::size_t i = 1; i < samples.size(); ++i)
            QCOMPARE(samples[i].timeMs - samples[i - 1].timeMs, qint64(SpinbarRecord::StatusPeriodMs));
        const QByteArray bytes = contents(folder + "status.log"_L1);
        QVERIFY(bytes.endsWith("\r\n"));
        QCOMPARE(std::size_t(bytes.count('\n')), samples.size());
    }

    QTemporaryDir m_folder;
    QProcessEnvironment m_environment;
    std::unique_ptr<Program> m_display;
    std::unique_ptr<Program> m_windowManager;
};

QTEST_GUILESS_MAIN(TestApplication)
#include "tst_application.moc"
