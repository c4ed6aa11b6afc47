#include "core/spinbarrecord.h"

#include "core/experimentfolder.h"
#include "framework/common/hindrance.h"
#include "rows.h"

#include <QJsonArray>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

const QDateTime Reload = QDateTime::fromMSecsSinceEpoch(1710000000000);

QByteArray experimentWithItem(const QByteArray &item)
{
    return "{\"experiment\":{\"items\":[" + item + "]}}";
}

} // namespace

class TestExperimentStorage : public QObject
{
    Q_OBJECT

private slots:
    void savedKeysFollowWhatIsSet()
    {
        const ExperimentFolder folder;
        SpinbarRecord record(folder.path(), Reload);
        QVERIFY(record.save());
        QJsonObject experiment = folder.experiment();
        QCOMPARE(experiment.keys(),
                 QStringList({u"items"_s, u"time"_s, u"timestamp"_s, u"title"_s, u"ts"_s}));
        QCOMPARE(experiment["title"_L1], QJsonValue(QString()));
        QVERIFY(experiment["items"_L1].isArray());
        QCOMPARE(experiment["time"_L1].toString(), Reload.toString(Qt::TextDate));

        record.setTitle(u"Крыса \"7\""_s);
        record.setComment(u"line\nbreak"_s);
        record.setSn(u"12AB"_s);
        record.addItem(10, 20, 0.5, 3, true, u"row"_s);
        record.addItem(30, 40, 1500, 0, false, {});
        experiment = folder.experiment();
        const QJsonArray items = experiment["items"_L1].toArray();
        QCOMPARE(items[0].toObject(), (QJsonObject{{u"start"_s, 10},
                                                   {u"end"_s, 20},
                                                   {u"rotations"_s, 0.5},
                                                   {u"rat"_s, true},
                                                   {u"index"_s, 3},
                                                   {u"title"_s, u"row"_s}}));
        QVERIFY(!items[1].toObject().contains("title"_L1));
        QVERIFY(folder.read("experiment.json").startsWith("{\n    \"experiment\": {\n"));

        SpinbarRecord again(folder.path(), {});
        QVERIFY(again.load());
        QCOMPARE(again.rawItems(), record.rawItems());
        QCOMPARE(again.title() + again.comment() + again.sn(),
                 record.title() + record.comment() + record.sn());
        QCOMPARE(again.timestamp(), Reload.toMSecsSinceEpoch());
    }

    void brokenFilesGiveDefaults_data()
    {
        const auto row = columns<QByteArray, bool, qint64, QString>("json", "loaded", "timestamp", "title");
        const qint64 reload = Reload.toMSecsSinceEpoch();
        const QByteArray nested = QByteArray(5000, '[') + QByteArray(5000, ']');
        row("no file", {}, false, reload, {});
        row("empty", "", false, reload, {});
        row("truncated", R"({"experiment":{"title":"a","items":[)", false, reload, {});
        row("binary", QByteArray(4096, '\0'), false, reload, {});
        row("root array", "[]", false, reload, {});
        row("no object", R"({"experiment":[1]})", false, reload, {});
        row("nested deep", R"({"experiment":{"title":"a","items":)" + nested + "}}", false, reload, {});
        row("nothing set", R"({"experiment":{}})", true, 0, {});
        row("null keeps", R"({"experiment":{"timestamp":null,"title":null}})", true, reload, {});
        row("other types", R"({"experiment":{"timestamp":"5","title":5,"items":{}}})", true, 0, {});
        const QByteArray tooLarge = R"({"experiment":{"title":"a"}})" + QByteArray(32 * 1024 * 1024, ' ');
        row("over 32 MB", tooLarge, false, reload, {});
        row("fraction", R"({"experiment":{"timestamp":5.9,"title":"b"}})", true, 5, u"b"_s);
        constexpr qint64 Highest = std::numeric_limits<qint64>::max();
        row("huge", R"({"experiment":{"timestamp":1e300,"ts":-1e300}})", true, Highest, {});
    }

    void brokenFilesGiveDefaults()
    {
        QFETCH(QByteArray, json);
        const ExperimentFolder folder;
        if (!json.isNull())
            folder.write("experiment.json", json);
        SpinbarRecord record(folder.path(), Reload);
        QTEST(record.load(), "loaded");
        QTEST(record.timestamp(), "timestamp");
        QTEST(record.title(), "title");
        QVERIFY(record.rawItems().isEmpty());
        QVERIFY(record.save());
        QVERIFY(SpinbarRecord(folder.path(), {}).load());
    }

    void onlyUsableRowsAreKept_data()
    {
        const auto row = columns<QByteArray, int>("item", "kept");
        row("whole", R"({"start":0,"end":1,"rotations":0.1})", 1);
        row("end is start", R"({"start":5,"end":5,"rotations":1})", 0);
        row("end before start", R"({"start":5,"end":4,"rotations":1})", 0);
        row("no start", R"({"end":5,"rotations":1})", 0);
        row("null start", R"({"start":null,"end":5,"rotations":1})", 0);
        row("no end", R"({"start":0,"rotations":1})", 0);
        row("no rotations", R"({"start":0,"end":5})", 0);
        row("row of a flush", R"({"start":0,"end":5,"rotations":-1})", 0);
        row("no object", R"(7,"a",[],null)", 0);
        row("huge", R"({"start":1,"end":1e30,"rotations":1e300,"index":1e30})", 1);
    }

    void onlyUsableRowsAreKept()
    {
        QFETCH(QByteArray, item);
        const ExperimentFolder folder;
        folder.write("experiment.json", experimentWithItem(item));
        SpinbarRecord record(folder.path(), Reload);
        QVERIFY(record.load());
        QTEST(int(record.rawItems().size()), "kept");
        if (!record.rawItems().isEmpty()) {
            QCOMPARE(record.rawItems().first().index, -1);
            QVERIFY(!record.rawItems().first().rat);
        }
    }

    void foreignKeysAndDroppedRowsLeaveWithTheNextSave()
    {
        const ExperimentFolder folder;
        folder.write("experiment.json", experimentWithItem(R"({"start":0,"end":0,"rotations":1})")
                                            .replace("{\"items\"", "{\"x\":1,\"items\""));
        SpinbarRecord record(folder.path(), Reload);
        QVERIFY(record.load());
        QVERIFY(folder.read("experiment.json").contains("\"x\""));
        QVERIFY(record.save());
        QVERIFY(!folder.experiment().contains("x"_L1));
        QVERIFY(folder.experiment()["items"_L1].toArray().isEmpty());
        record.setComment(QString(500, u'c'));
        QVERIFY(record.save());
        record.setComment({});
        QVERIFY(record.save());
        // Nothing of the longer text is left.
        QVERIFY(folder.read("experiment.json").endsWith("}\n}\n"));
        QCOMPARE(folder.experiment().size(), 5);
    }

    void logLines_data()
    {
        const auto row = columns<QByteArray, QList<qint64>>("log", "timesAndCounters");
        row("two line ends", "S;0;0;0;0;0;A;64\r\nS;0;0;0;0;0;B;65\n", {100, 10, 101, 11});
        row("seven fields", "0;0;0;0;0;A;64\n", {});
        row("eight empty ones", ";;;;;;;\n;;;;;;A;1", {1, 10});
        row("no time", "S;0;0;0;0;0;A;zz\n", {});
        row("no counter", "S;0;0;0;0;0;zz;64\n", {100, 0});
        row("last line cut", "S;0;0;0;0;0;A;64\r\nS;0;0;0;0;0;B", {100, 10});
        row("blanks and prefix", " S;0;0;0;0;0; A ; 0x64 \t\r\n", {100, 10});
        row("negative, too long", "0;0;0;0;0;0;-A;-64\n0;0;0;0;0;0;11111111111111111;7fffffffffffffff\n",
            {-100, -10, std::numeric_limits<qint64>::max(), 0});
        row("times again and back", "0;0;0;0;0;0;1;B\n0;0;0;0;0;0;2;A\n0;0;0;0;0;0;3;B\n0;0;0;0;0;0;4;A\n",
            {10, 4, 11, 3});
        row("byte order mark, other text", "\xEF\xBB\xBFS;\xD0\xAF;\xFF;0;0;0;A;64\n", {100, 10});
        row("over long line",
            QByteArray(700000, 'x') + QByteArray(1000000, ';') + ";A;64\n0;0;0;0;0;0;B;65\n",
            {100, 10, 101, 11});
        row("over long line of few fields", QByteArray(700000, ' ') + "0;0;0;0;0;A;64\n", {});
        QByteArray backwards;
        QList<qint64> ascending;
        for (qint64 time = 10000; time > 0; --time) {
            backwards +=
                "S;0;0;0;0;0;" + QByteArray::number(3 * time, 16) + ';' + QByteArray::number(time, 16) + '\n';
            ascending << 10001 - time << 3 * (10001 - time);
        }
        row("ten thousand times backwards", backwards, ascending);
        row("line across pieces", QByteArray(262140, '\n') + "0;0;0;0;0;0;ABC;DEF\n", {0xDEF, 0xABC});
    }

    void logLines()
    {
        QFETCH(QByteArray, log);
        QFETCH(QList<qint64>, timesAndCounters);
        const ExperimentFolder folder;
        folder.write("status.log", log);
        SpinbarRecord record(folder.path(), Reload);
        QList<qint64> found;
        for (const StatusSample &sample : record.counters().samples())
            found << sample.timeMs << sample.counter;
        QCOMPARE(found, timesAndCounters);
    }

    void aGigabyteOfZerosIsAnEmptyLog()
    {
        const ExperimentFolder folder;
        QFile log(folder.path() + "status.log"_L1);
        QVERIFY(log.open(QIODevice::WriteOnly));
        QVERIFY(log.resize(qint64(1) << 30));
        SpinbarRecord record(folder.path(), Reload);
        record.loadStatus(false);
        QVERIFY(record.isStatusLoaded());
        QCOMPARE(record.counters().samples().size(), 0U);
    }

    void aFolderInPlaceOfAFileIsNoFile()
    {
        const ExperimentFolder folder;
        QVERIFY(QDir(folder.path()).mkdir(u"status.log"_s));
        QVERIFY(QDir(folder.path()).mkdir(u"experiment.json"_s));
        SpinbarRecord record(folder.path(), Reload);
        QVERIFY(!record.load());
        QVERIFY(!record.save());
        record.start();
        record.addStatus(u"S,0,0,0,A,64"_s);
        record.addItem(1, 2, 3, 0, true, {});
        QVERIFY(record.counters().isEmpty());
        record.stop();
        QCOMPARE(record.rawItems().size(), 1);
    }

#ifdef Q_OS_LINUX
    void aLogThatBreaksOffWhileReadIsTold()
    {
        const ExperimentFolder folder;
        // A file that opens, and gives nothing of its first page.
        QVERIFY(QFile::link(u"/proc/self/mem"_s, folder.path() + "status.log"_L1));
        SpinbarRecord record(folder.path(), Reload);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Cannot read all of .*status.log"_s));
        record.loadStatus(false);
        QVERIFY(record.counters().isEmpty());
    }
#endif

#ifdef Q_OS_UNIX
    void aFullDiskLeavesWholeLines()
    {
        const ExperimentFolder folder;
        const QString line(38, u'S');
        StatusLog::Writer writer;
        QVERIFY(writer.open(folder.path() + "status.log"_L1));
        {
            const FileSizeLimit limit(100);
            QTest::failOnWarning(QRegularExpression(u"."_s));
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Cannot write to"_s));
            for (int i = 0; i < 4; ++i)
                writer.append(line);
            QCOMPARE(folder.read("status.log").size(), 80);
        }
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Writing again to"_s));
        writer.append(u"last"_s);
        QCOMPARE(folder.read("status.log"), ((line + "\r\n"_L1).repeated(2) + "last\r\n"_L1).toUtf8());
    }
#endif
};

QTEST_GUILESS_MAIN(TestExperimentStorage)
#include "tst_experimentstorage.moc"
