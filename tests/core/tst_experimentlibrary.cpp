#include "core/experimentlibrary.h"
#include "core/experimentrecords.h"
#include "core/spinbarrecord.h"
#include "files.h"
#include "rows.h"

#include <QDir>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using Outcome = ExperimentLibrary::RenameOutcome;
Q_DECLARE_METATYPE(Outcome)

namespace {

void write(const QString &path, const QByteArray &content)
{
    QDir().mkpath(path.first(path.lastIndexOf(u'/')));
    if (!writeFile(path, content))
        qFatal("cannot write");
}

} // namespace

class TestExperimentLibrary : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_root = std::make_unique<QTemporaryDir>();
        m_records = m_root->filePath(u"Records"_s) + u'/';
        write(m_records + "b/experiment.json"_L1,
              R"({"experiment":{"title":"T","comment":"C","timestamp":5,"items":[
                      {"start":1,"end":2,"rotations":3,"rat":false},{"start":1,"end":1,"rotations":3}]}})");
        write(m_records + "a/experiment.json"_L1, "broken");
        write(m_records + "deep/er/other.json"_L1, "{}");
        write(m_records + "none/status.log"_L1, "");
    }

    void everyFolderWithAJsonFileIsListed()
    {
        write(m_records + "a/copy.JSON"_L1, "{}");
        write(m_records + ".hidden/experiment.json"_L1, "{}");
        QFile::link(m_records, m_records + "deep/circle"_L1);
        const ExperimentLibrary library(m_records);
        const QList<ExperimentEntry> entries = library.list();
        QStringList names;
        for (const ExperimentEntry &entry : entries)
            names.append(entry.name);
        QCOMPARE(names, QStringList({u"a"_s, u"a"_s, u"b"_s, u"er"_s}));
        QVERIFY(entries[0].rat);
        QCOMPARE(entries[0].items, 0);
        QVERIFY(entries[0].timestamp > 1'000'000'000'000);
        QCOMPARE(entries[2].path(), m_records + "b/experiment.json"_L1);
        QCOMPARE(entries[2].title + entries[2].comment, u"TC"_s);
        QCOMPARE(entries[2].timestamp, 5);
        QCOMPARE(entries[2].items, 1);
        QVERIFY(!entries[2].rat);
        QVERIFY(ExperimentLibrary(m_root->filePath(u"nowhere"_s)).list().isEmpty());
        QVERIFY(!QFile::exists(m_root->filePath(u"nowhere"_s)));
    }

    void recordsAreReadUntilTheWorkEnds()
    {
        ExperimentRecords records;
        const QStringList folders{m_records + "a/"_L1, m_records + "b/"_L1, m_records + "b/"_L1};
        QVERIFY(records.read(folders));
        QCOMPARE(records.all().size(), 3);
        QCOMPARE(records.find(m_records + "b/experiment.json"_L1), records.all().at(1));
        QCOMPARE(records.all().at(1)->title(), u"T"_s);
        QVERIFY(!records.read(folders, [&records] { return records.all().size() < 2; }));
        QCOMPARE(records.all().size(), 2);
        records.clear();
        QVERIFY(!records.find(m_records + "b/experiment.json"_L1));
    }

    void renameHasAnOutcome_data()
    {
        const auto row = columns<QString, Outcome>("name", "outcome");
        row("new", u"  Крыса \u2116 7 "_s, Outcome::Renamed);
        row("same but for case", u" B "_s, Outcome::Unchanged);
        row("empty", u"  "_s, Outcome::EmptyName);
        row("of another, other case", u"ER"_s, Outcome::NameTaken);
        row("of a folder that is no experiment", u"none"_s, Outcome::Failed);
        for (const char *name : {"..", ".", "../out", "x/y", "x\\y", "/tmp/x", "x:y", "x*", "x?", "<x", "x|y",
                                 "\"x\"", "NUL", "com1.txt", "x.", ".x", "x\ty"})
            row(name, QString::fromLatin1(name), Outcome::Failed);
        row("null character", QString(QChar()) + u'x', Outcome::Failed);
        row("too long", QString(300, u'x'), Outcome::Failed);
    }

    void renameHasAnOutcome()
    {
        QFETCH(QString, name);
        QFETCH(Outcome, outcome);
        QString folder;
        QCOMPARE(ExperimentLibrary(m_records).rename(m_records + "b/"_L1, name, &folder), outcome);
        const bool renamed = outcome == Outcome::Renamed;
        QCOMPARE(QFile::exists(m_records + "b/experiment.json"_L1), !renamed);
        QCOMPARE(folder, renamed ? m_records + name.trimmed() + u'/' : QString());
        if (renamed)
            QVERIFY(QFile::exists(folder + "experiment.json"_L1));
        QCOMPARE(QDir(m_root->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), {u"Records"_s});
    }

    void aMomentThatComesTwiceHasTwoFolders()
    {
        const ExperimentLibrary library(m_records);
        const QDateTime moment(QDate(2024, 3, 9), QTime(8, 5, 59, 998));
        QStringList names;
        for (int i = 0; i < 3; ++i) {
            const QString folder = library.newFolder(moment);
            names.append(folder.mid(m_records.size()));
            write(folder + "status.log"_L1, {});
        }
        QCOMPARE(names, QStringList({u"2024.03.09-08.05.59.998/"_s, u"2024.03.09-08.05.59.999/"_s,
                                     u"2024.03.09-08.06.00.000/"_s}));
    }

    void aDeeperExperimentMovesUpWithItsNewName()
    {
        const ExperimentLibrary library(m_records);
        QCOMPARE(library.rename(m_records + "deep/er/"_L1, u"new"_s), Outcome::Renamed);
        QVERIFY(QFile::exists(m_records + "new/other.json"_L1));
    }

    void removedFoldersAreInTheTrash()
    {
        const ExperimentLibrary library(m_records);
        QVERIFY(library.remove(m_records + "b/"_L1));
        QVERIFY(!QFile::exists(m_records + u'b'));
        QVERIFY(!library.remove(m_records + "b/"_L1));
        write(m_records + "experiment.json"_L1, "{}");
        write(m_root->filePath(u"outside/experiment.json"_s), "{}");
        for (const QString &folder :
             {m_records, m_root->filePath(u"outside/"_s), m_records + "../outside/"_L1}) {
            QVERIFY(!library.remove(folder));
            QVERIFY(QFile::exists(folder + "experiment.json"_L1));
        }
    }

#ifdef Q_OS_LINUX
    void withoutATrashTheExperimentStays_data()
    {
        const auto row = columns<QString, QString, QString>("experiment", "inTheWay", "reason");
        row("no folder for it", u"b"_s, u"data"_s, u"no trash takes it"_s);
        row("cannot be made", u"b"_s, u"data/Trash"_s, u"no trash takes it"_s);
        row("nothing can be put in", u"b"_s, u"data/Trash/files"_s, u"Not a directory"_s);
        row("no note can be made", u"b"_s, u"data/Trash/info"_s, u"no trash takes it"_s);
        // The trash keeps a note for each, whose name is longer still.
        row("too long for the trash", QString(241, u'x'), {}, u"no trash takes it"_s);
    }

    void withoutATrashTheExperimentStays()
    {
        QFETCH(QString, experiment);
        QFETCH(QString, inTheWay);
        QFETCH(QString, reason);
        const QByteArray before = qgetenv("XDG_DATA_HOME");
        const auto restore = qScopeGuard([&before] { qputenv("XDG_DATA_HOME", before); });
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_root->filePath(u"data"_s)));
        if (!inTheWay.isEmpty())
            write(m_root->filePath(inTheWay), {});
        write(m_records + experiment + "/experiment.json"_L1, "{}");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Cannot move to the trash: .*"_s + reason,
                                                              QRegularExpression::CaseInsensitiveOption));
        QVERIFY(!ExperimentLibrary(m_records).remove(m_records + experiment + u'/'));
        QCOMPARE(contents(m_records + experiment + "/experiment.json"_L1), QByteArray("{}"));
    }
#endif

private:
    std::unique_ptr<QTemporaryDir> m_root;
    QString m_records;
};

QTEST_GUILESS_MAIN(TestExperimentLibrary)
#include "tst_experimentlibrary.moc"
