#include "cli/clirun.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

enum ExitCodes { Done = 0, Failed = 1, WrongUsage = 2 };

bool writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QFile::WriteOnly)
           && file.write(bytes) == bytes.size();
}

QByteArray experimentJson(const QByteArray &title, const QByteArray &items)
{
    return R"({"experiment":{"timestamp":1700000000000,"ts":1000,"title":")" + title
           + R"(","comment":"c","sn":"B42403101","items":[)" + items + "]}}";
}

const QByteArray oneRow = R"({"start":1200,"end":2200,"rotations":500.5,"rat":true,"index":2})";

// Ten lines from clock 1000 on; the motor turns half a rotation between two of them.
QByteArray statusLog()
{
    QByteArray log;
    for (int line = 0; line < 10; ++line) {
        log += "S;1;0;28;28;28;28;" + QByteArray::number(line * 500, 16) + ';'
               + QByteArray::number(1000 + line * 200, 16) + "\r\n";
    }
    return log;
}

} // namespace

class TestCommands : public QObject
{
    Q_OBJECT

private slots:
    void wrongUsageIsToldAndEndsWithTwo_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::newRow("no command") << QStringList{};
        QTest::newRow("unknown command") << QStringList{u"fly"_s};
        QTest::newRow("unknown option before") << QStringList{u"--fast"_s, u"list"_s};
        QTest::newRow("unknown option behind") << QStringList{u"list"_s, u"--fast"_s};
        QTest::newRow("unknown language") << QStringList{u"--language"_s, u"de_DE"_s, u"list"_s};
        QTest::newRow("data without folder") << QStringList{u"--data"_s};
        QTest::newRow("list with a word") << QStringList{u"list"_s, u"x"_s};
        QTest::newRow("table of nothing") << QStringList{u"table"_s};
        QTest::newRow("export of nothing") << QStringList{u"export"_s, u"--output"_s, u"x.csv"_s};
        QTest::newRow("export without output") << QStringList{u"export"_s, u"x"_s};
        QTest::newRow("export in no format") << QStringList{u"export"_s, u"--output"_s, u"x.doc"_s, u"x"_s};
        QTest::newRow("script of two files") << QStringList{u"script"_s, u"a"_s, u"b"_s};
        QTest::newRow("replay of nothing") << QStringList{u"replay"_s};
        QTest::newRow("trail no number") << QStringList{u"replay"_s, u"--trail"_s, u"2s"_s, u"x"_s};
        QTest::newRow("trail out of range") << QStringList{u"replay"_s, u"--trail"_s, u"100.1"_s, u"x"_s};
        QTest::newRow("trail not finite") << QStringList{u"replay"_s, u"--trail"_s, u"nan"_s, u"x"_s};
        QTest::newRow("too few thresholds")
            << QStringList{u"replay"_s, u"--thresholds"_s, u"30;30;30"_s, u"x"_s};
        QTest::newRow("threshold out of range")
            << QStringList{u"replay"_s, u"--thresholds"_s, u"30;30;30;50"_s, u"x"_s};
        QTest::newRow("no such rodent") << QStringList{u"record"_s, u"--rodent"_s, u"cats"_s};
        QTest::newRow("speed without unit") << QStringList{u"record"_s, u"--speed"_s, u"1"_s};
        QTest::newRow("speed below zero") << QStringList{u"record"_s, u"--speed=-1"_s, u"--unit"_s, u"rpm"_s};
        QTest::newRow("no such unit")
            << QStringList{u"record"_s, u"--speed"_s, u"1"_s, u"--unit"_s, u"mph"_s};
        QTest::newRow("speed and script")
            << QStringList{u"record"_s, u"--speed"_s, u"1"_s, u"--unit"_s, u"rpm"_s, u"--script"_s, u"s"_s};
        QTest::newRow("script without title") << QStringList{u"record"_s, u"--script"_s, QString()};
        QTest::newRow("duration no number") << QStringList{u"record"_s, u"--duration"_s, u"long"_s};
        QTest::newRow("above the top speed") << QStringList{
            u"--data"_s, m_folder.filePath(u"speed"_s), u"record"_s, u"--speed"_s, u"30.01"_s, u"--unit"_s,
            u"rpm"_s};
    }

    void wrongUsageIsToldAndEndsWithTwo()
    {
        QFETCH(QStringList, words);
        const CliRun run = runCli(words);
        QCOMPARE(run.exitCode, WrongUsage);
        QVERIFY(!run.err.isEmpty());
        QCOMPARE(run.out, QString());
    }

    void whatDoesNotExistIsToldAndEndsWithOne_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::newRow("table") << QStringList{u"table"_s, u"gone"_s};
        QTest::newRow("second of two") << QStringList{u"table"_s, u"A"_s, u"gone"_s};
        QTest::newRow("export") << QStringList{u"export"_s, u"--output"_s, m_folder.filePath(u"x.csv"_s),
                                               u"gone"_s};
        QTest::newRow("script") << QStringList{u"script"_s, u"gone"_s};
        QTest::newRow("replay") << QStringList{u"replay"_s, u"gone"_s};
#ifndef Q_OS_WIN
        QTest::newRow("backslash taken for a slash") << QStringList{u"table"_s, u"gone\\below"_s};
#endif
        QTest::newRow("recording by a script") << QStringList{u"record"_s, u"--script"_s, u"gone"_s};
    }

    void whatDoesNotExistIsToldAndEndsWithOne()
    {
        writeExperiment(u"A"_s, experimentJson("First", oneRow));
        writeExperiment(u"gone\\below"_s, experimentJson("Out of reach", oneRow));
        QFETCH(QStringList, words);
        const CliRun run = runData(words);
        QCOMPARE(run.exitCode, Failed);
        QVERIFY2(run.err.contains("gone"_L1), qPrintable(run.err));
        QVERIFY(!QFile::exists(m_folder.filePath(u"Records/gone"_s)));
        QVERIFY(QDir(m_folder.filePath(u"Records/gone\\below"_s)).removeRecursively());
    }

    void brokenScriptIsToldAndNotPlayed()
    {
        const QString path = m_folder.filePath(u"Scripts/Broken.xml"_s);
        for (const QByteArray &bytes : {QByteArray(), QByteArray("<SpeedScript><Loops>3</Loops>"),
                                        QByteArray(100'000, '\0'), QByteArray("\xff\xfe{}")}) {
            QVERIFY(writeFile(path, bytes));
            for (const QStringList &words :
                 {QStringList{u"script"_s, u"--json"_s, path}, {u"record"_s, u"--script"_s, u"Broken"_s}}) {
                const CliRun run = runData(words);
                QCOMPARE(run.exitCode, Failed);
                QVERIFY2(run.err.contains(path), qPrintable(run.err));
                QCOMPARE(run.out, QString());
            }
        }
    }

    void readingMakesNoFolders()
    {
        const QString data = m_folder.filePath(u"never"_s);
        const CliRun run = runCli({u"--data"_s, data, u"list"_s, u"--json"_s});
        QCOMPARE(run.exitCode, Done);
        QCOMPARE(run.json().array(), QJsonArray());
        QVERIFY(run.json().isArray());
        QVERIFY(!QFile::exists(data));
    }

    void listTellsWhatStandsInTheFiles()
    {
        writeExperiment(u"A"_s, experimentJson("First", oneRow));
        writeExperiment(u"B"_s, "no json at all");
        const CliRun run = runData({u"list"_s, u"--json"_s});
        QCOMPARE(run.exitCode, Done);
        QJsonObject first;
        for (const QJsonValue value : run.json().array()) {
            if (value["name"_L1] == "A"_L1)
                first = value.toObject();
        }
        QCOMPARE(first, (QJsonObject{{u"name"_s, u"A"_s},
                                     {u"path"_s, m_folder.filePath(u"Records/A"_s)},
                                     {u"timestamp"_s, qint64(1700000000000)},
                                     {u"rat"_s, true},
                                     {u"title"_s, u"First"_s},
                                     {u"comment"_s, u"c"_s},
                                     {u"items"_s, 1}}));
        QCOMPARE(run.json().array().size(), 2);
    }

    void tableIsFoundByNameFolderAndFile()
    {
        writeExperiment(u"A"_s, experimentJson("First", oneRow));
        const QJsonDocument byName = runData({u"table"_s, u"--json"_s, u"A"_s}).json();
        const QJsonArray rows = byName["rows"_L1].toArray();
        QCOMPARE(rows.size(), 6);
        // From 200 ms to 1200 ms behind the first status line, half a turn of the drum on the rats' drum.
        const QJsonArray row = rows.at(1).toArray();
        QCOMPARE(row.at(0), QJsonValue(u"1"_s));
        QCOMPARE(row.at(1), QJsonValue(u"{R} 00:00-00:01 [3]"_s));
        QCOMPARE(row.at(2).toDouble(), 1.0);
        QCOMPARE(row.at(3).toDouble(), 0.5005 * 0.21991148575128552);
        QCOMPARE(row.at(4).toDouble(), 0.5005);
        // 2.5 motor rotations within that second, times the circumference and no gear.
        QCOMPARE(row.at(5).toDouble(), 2.5 * 0.21991148575128552);
        QCOMPARE(rows.at(2), QJsonValue(QJsonArray()));
        for (const QString &word :
             {m_folder.filePath(u"Records/A"_s), m_folder.filePath(u"Records/A/experiment.json"_s)})
            QCOMPARE(runData({u"table"_s, u"--json"_s, word}).json(), byName);
    }

    void brokenExperimentHasNoRowsAndNoError()
    {
        writeExperiment(u"B"_s, R"({"experiment": {"items": [)");
        const CliRun run = runData({u"table"_s, u"--json"_s, u"B"_s});
        QCOMPARE(run.exitCode, Done);
        QCOMPARE(run.json()["rows"_L1].toArray().size(), 5);
    }

    void labelsFollowTheLanguage()
    {
        writeExperiment(u"A"_s, experimentJson("First", oneRow));
        // Header texts are made once a process, so this run must be the first to ask for statistics.
        const QJsonArray rows =
            runData({u"table"_s, u"--long"_s, u"--json"_s, u"A"_s}).json()["rows"_L1].toArray();
        QCOMPARE(rows.at(3)[1], QJsonValue(u"M - average value"_s));
        QCOMPARE(rows.at(5)[1], QJsonValue(u"σ - standard deviation"_s));
    }

    void exportWritesTheFormatOfItsSuffix()
    {
        writeExperiment(u"A"_s, experimentJson("First", oneRow));
        writeExperiment(u"C"_s, experimentJson("Second", oneRow));
        const QString csv = m_folder.filePath(u"both.csv"_s);
        QCOMPARE(runData({u"export"_s, u"--output"_s, csv, u"A"_s, u"C"_s}).exitCode, Done);
        QFile file(csv);
        QVERIFY(file.open(QFile::ReadOnly));
        const QByteArray bytes = file.readAll();
        QVERIFY2(bytes.startsWith("\xEF\xBB\xBFSummary\r\n"), bytes.left(40).constData());
        const QString workbook = m_folder.filePath(u"book.xlsx"_s);
        QCOMPARE(runData({u"export"_s, u"--output"_s, workbook, u"A"_s}).exitCode, Done);
        QFile book(workbook);
        QVERIFY(book.open(QFile::ReadOnly) && book.read(2) == "PK");
        const CliRun refused =
            runData({u"export"_s, u"--output"_s, m_folder.filePath(u"no/such/x.csv"_s), u"A"_s});
        QCOMPARE(refused.exitCode, Failed);
        QVERIFY(refused.err.contains("no/such/x.csv"_L1));
    }

    void replayFlushesAnimalsStillPresent()
    {
        // Lane 2 is covered from the third line to the end: present from clock 1400 on.
        QByteArray log;
        for (int line = 0; line < 10; ++line) {
            log += "S;1;0;28;" + QByteArray(line >= 2 ? "14" : "28") + ";28;28;"
                   + QByteArray::number(line * 500, 16) + ';' + QByteArray::number(1000 + line * 200, 16)
                   + "\r\n";
        }
        const QString path = m_folder.filePath(u"replayed.log"_s);
        QVERIFY(writeFile(path, log));
        const CliRun run = runCli({u"replay"_s, u"--json"_s, path});
        QCOMPARE(run.exitCode, Done);
        // Dated back three samples from clock 1800; the counter counts from there to the last line.
        QCOMPARE(run.json().array(), (QJsonArray{QJsonObject{{u"start"_s, 1200},
                                                             {u"end"_s, 2800},
                                                             {u"rotations"_s, 2500.0},
                                                             {u"index"_s, 1},
                                                             {u"rat"_s, true}}}));
        QCOMPARE(runCli({u"replay"_s, u"--json"_s, u"--thresholds"_s, u"20;20;20;20"_s, path}).json().array(),
                 QJsonArray());
    }

    void replaySurvivesWhatIsNoLog_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("zeros without a line end") << QByteArray(4 * 1024 * 1024, '\0');
        QTest::newRow("not hexadecimal") << QByteArray("S;1;0;g;h;i;j;zz;zz\r\n");
        QTest::newRow("too few fields") << QByteArray("S;1\r\nS;\r\n;;;;;;;;;\r\n");
        QTest::newRow("numbers out of range")
            << QByteArray("S;1;0;14;14;14;14;7fffffffffffffff;7fffffffffffffff\r\n").repeated(5);
    }

    void replaySurvivesWhatIsNoLog()
    {
        QFETCH(QByteArray, bytes);
        const QString path = m_folder.filePath(u"odd.log"_s);
        QVERIFY(writeFile(path, bytes));
        const CliRun run = runCli({u"replay"_s, u"--json"_s, path});
        QCOMPARE(run.exitCode, Done);
        QVERIFY(run.json().isArray());
    }

private:
    CliRun runData(const QStringList &words)
    {
        return runCli(QStringList{u"--data"_s, m_folder.path()} + words);
    }

    void writeExperiment(const QString &name, const QByteArray &json)
    {
        const QString folder = m_folder.filePath(u"Records/"_s + name);
        QVERIFY(writeFile(folder + "/experiment.json"_L1, json));
        QVERIFY(writeFile(folder + "/status.log"_L1, statusLog()));
    }

    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(TestCommands)
#include "tst_commands.moc"
