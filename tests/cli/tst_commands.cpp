#include "cli/clirun.h"
#include "core/experimentfolder.h"
#include "rows.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

enum ExitCodes { Done = 0, Failed = 1, WrongUsage = 2 };

QByteArray experimentJson(const QByteArray &title, const QByteArray &items)
{
    return R"({"experiment":{"timestamp":1700000000000,"ts":1000,"title":")" + title
           + R"(","comment":"c","sn":"B42403101","items":[)" + items + "]}}";
}

const QByteArray oneRow = R"({"start":1200,"end":2200,"rotations":500.5,"rat":true,"index":2})";

// Ten lines from clock 1000 on; the motor turns half a rotation between two of them.
const QByteArray tenLines = statusLog(10, 1000, 500);

} // namespace

class TestCommands : public QObject
{
    Q_OBJECT

private slots:
    void wrongUsageIsToldAndEndsWithTwo_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::newRow("no command") << QStringList();
        const auto lines =
            "fly|--fast list|list --fast|--language de_DE list|--data|list x|table|export --output "
            "x.csv|export x|"
            "export --output x.doc x|script a b|replay|replay --trail 2s x|replay --trail 100.1 x|"
            "replay --trail nan x|replay --thresholds 30;30;30 x|replay --thresholds 30;30;30;50 x|"
            "record --rodent cats|record --speed 1|record --speed=-1 --unit rpm|record --speed 1 --unit mph|"
            "record --speed 30.01 --unit rpm|record --speed 1 --unit rpm --script s|record --script |"
            "record --duration long"_L1;
        for (const QString &words : QString(lines).split(u'|'))
            QTest::newRow(qPrintable(words)) << words.split(u' ');
    }

    void wrongUsageIsToldAndEndsWithTwo()
    {
        QFETCH(QStringList, words);
        const CliRun run = runData(words);
        QCOMPARE(run.exitCode, WrongUsage);
        QVERIFY(!run.err.isEmpty());
        QCOMPARE(run.out, QString());
    }

    void whatDoesNotExistIsToldAndEndsWithOne_data()
    {
        QTest::addColumn<QStringList>("words");
        for (const char *words : {"table gone", "table A gone", "export --output x.csv gone", "script gone",
                                  "replay gone", "record --script gone"})
            QTest::newRow(words) << QString::fromLatin1(words).split(u' ');
#ifndef Q_OS_WIN
        // A backslash is no slash.
        QTest::newRow("table gone\\below") << QStringList{u"table"_s, u"gone\\below"_s};
#endif
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
            QVERIFY(write(path, bytes));
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
        QCOMPARE(rows.at(1)[1], QJsonValue(u"{R} 00:00-00:01 [3]"_s));
        QCOMPARE(rows.at(2), QJsonValue(QJsonArray()));
        for (const QString &word :
             {m_folder.filePath(u"Records/A"_s), m_folder.filePath(u"Records/A/experiment.json"_s)})
            QCOMPARE(runData({u"table"_s, u"--json"_s, word}).json(), byName);
    }

    void exportWritesTheFormatOfItsSuffix()
    {
        writeExperiment(u"A"_s, experimentJson("First", oneRow));
        writeExperiment(u"C"_s, experimentJson("Second", oneRow));
        const QString csv = m_folder.filePath(u"both.csv"_s);
        QCOMPARE(runData({u"export"_s, u"--output"_s, csv, u"A"_s, u"C"_s}).exitCode, Done);
        QVERIFY2(contents(csv).startsWith("\xEF\xBB\xBFSummary\r\n"), contents(csv).left(40).constData());
        const QString workbook = m_folder.filePath(u"book.xlsx"_s);
        QCOMPARE(runData({u"export"_s, u"--output"_s, workbook, u"A"_s}).exitCode, Done);
        QVERIFY(contents(workbook).startsWith("PK"));
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
            const QByteArray empty = statusLine(1000 + line * 200, line * 500);
            log += line < 2 ? empty : QByteArray(empty).replace("S;1;0;28;28;", "S;1;0;28;14;");
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

    void replaySurvivesWhatIsNoLog()
    {
        const QString path = m_folder.filePath(u"odd.log"_s);
        const QByteArray highest = "S;1;0;14;14;14;14;7fffffffffffffff;7fffffffffffffff\r\n";
        for (const QByteArray &bytes :
             {QByteArray(), QByteArray(4 * 1024 * 1024, '\0'), QByteArray("S;1;0;g;h;i;j;zz;zz\r\n"),
              QByteArray("S;1\r\nS;\r\n;;;;;;;;;\r\n"), highest.repeated(5)}) {
            QVERIFY(writeFile(path, bytes));
            const CliRun run = runCli({u"replay"_s, u"--json"_s, path});
            QVERIFY2(run.exitCode == Done && run.json().isArray(), bytes.left(40).constData());
        }
    }

private:
    static bool write(const QString &path, const QByteArray &bytes)
    {
        return QDir().mkpath(QFileInfo(path).path()) && writeFile(path, bytes);
    }

    CliRun runData(const QStringList &words)
    {
        return runCli(QStringList{u"--data"_s, m_folder.path()} + words);
    }

    void writeExperiment(const QString &name, const QByteArray &json)
    {
        const QString folder = m_folder.filePath(u"Records/"_s + name);
        QVERIFY(write(folder + "/experiment.json"_L1, json));
        QVERIFY(write(folder + "/status.log"_L1, tenLines));
    }

    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(TestCommands)
#include "tst_commands.moc"
