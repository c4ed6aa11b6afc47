#include "framework/common/apphelper.h"
#include "framework/common/processlist.h"

#include "files.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <cstring>

using namespace Qt::StringLiterals;

namespace {

constexpr auto MarkArgument = "--mark";
constexpr auto SleepArgument = "--sleep";
constexpr int Attempts = 10;
// A predecessor may take this long to end while the check still lets its successor start.
constexpr int RestartTimeMs = 2'000;

} // namespace

class TestAppHelper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ownProcessIsSkippedOnce()
    {
        const auto found = [](const QStringList &running) {
            return AppHelper::selectRunningApps({u"Cagelight"_s, u"Spinbar"_s, u"spinbar.exe"_s}, running,
                                                u"Spinbar.exe"_s);
        };
        QCOMPARE(found({u"explorer.exe"_s, u"Spinbar.exe"_s}), QStringList());
        QCOMPARE(found({u"spinbar.exe"_s, u"SPINBAR.EXE"_s, u"Spinbar.exe"_s}),
                 QStringList({u"SPINBAR.EXE"_s, u"Spinbar.exe"_s}));
        QCOMPARE(found({u"Spinbar.exe"_s, u"Spinbard.exe"_s}), QStringList(u"Spinbard.exe"_s)); // debug build
        QCOMPARE(found({u"Cagelight.exe"_s, u"Cagelight2.exe"_s, u"Spinbar"_s}),
                 QStringList(u"Cagelight.exe"_s));
    }

    void taskListGivesImageNames()
    {
        QCOMPARE(ProcessList::fromTaskList(
                     u"\r\n\"System\",\"4\",\"Services\"\r\n"
                     "\"Spinbar.exe\",\"9\",\"Console\",\"1\",\"1,024 K\"\r\n"
                     "INFO: No tasks. \r\n\"a b.exe \",\"1\"\r\n\"Spinbar.exe\",\"10\"\r\n"_s),
                 (QStringList{u"Spinbar.exe"_s, u"a b.exe"_s, u"Spinbar.exe"_s}));
    }

    void processFolderGivesImageNames()
    {
        const QTemporaryDir proc;
        const auto process = [&](const QString &id, const QString &link, const QByteArray &arguments) {
            QVERIFY(QDir(proc.path()).mkpath(id));
            QVERIFY(link.isEmpty() || QFile::link(link, proc.filePath(id + "/exe"_L1)));
            QVERIFY(writeFile(proc.filePath(id + "/cmdline"_L1), arguments));
        };
        process(u"1"_s, u"/opt/my app/Spinbar"_s, "other");
        process(u"20"_s, u"/usr/bin/Spinbar (deleted)"_s, "");
        process(u"300"_s, {}, QByteArray("/usr/bin/Cagelight\0--x\0", 23)); // of another user
        process(u"4"_s, {}, "");                                            // ended, not yet collected
        process(u"self"_s, u"/bin/Self"_s, "");
        QStringList names = ProcessList::fromProcFolder(proc.path());
        names.sort();
        QCOMPARE(names, (QStringList{u"Cagelight.exe"_s, u"Spinbar.exe"_s, u"Spinbar.exe"_s}));
        QVERIFY(ProcessList::fromProcFolder(proc.filePath(u"none"_s)).isEmpty());
    }

    void freeStartDoesNotWait()
    {
        // Every wait lets events through.
        bool waited = false;
        QObject context;
        QTimer::singleShot(0, &context, [&waited] { waited = true; });
        QVERIFY(AppHelper::waitForAppsToEnd({u"NoSuchProgramRuns"_s}, Attempts).isEmpty());
        QVERIFY(!waited);
    }

    void predecessorIsGivenTimeToEnd()
    {
        const QTemporaryDir folder;
        const QString program = folder.filePath(u"spinbar-old"_s);
        QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), program));
        QProcess predecessor;
        predecessor.start(program, {QLatin1StringView(SleepArgument)});
        QVERIFY(predecessor.waitForStarted());
        const QStringList names{u"Spinbar-Old"_s};
        QCOMPARE(AppHelper::waitForAppsToEnd(names, 0), QStringList{u"spinbar-old.exe"_s});
        QCOMPARE(AppHelper::runningAppsMessage({u"a.exe"_s, u"b.exe"_s}),
                 u"Cannot start because these apps are already running:\na.exe\nb.exe"_s);
        QTimer::singleShot(RestartTimeMs, &predecessor, &QProcess::kill);
        QVERIFY(AppHelper::waitForAppsToEnd(names, Attempts).isEmpty());
        QTRY_COMPARE(predecessor.state(), QProcess::NotRunning);
    }

    void restartQuitsAndStartsTheProgramAgain()
    {
        const QTemporaryDir folder;
        const QString mark = folder.filePath(u"mark"_s);
        QTimer::singleShot(0, qApp, [&] { AppHelper::restart({QLatin1StringView(MarkArgument), mark}); });
        QCOMPARE(QCoreApplication::exec(), 0);
        QTRY_VERIFY(QFile::exists(mark));
    }

    void versionIsCutToItsNumbers()
    {
        const auto version = [](const QString &full, bool withPatch) {
            QCoreApplication::setApplicationVersion(full);
            return AppHelper::appVersion(withPatch);
        };
        QCOMPARE(version(u"1.2.3.4"_s, true), u"1.2.3"_s);
        QCOMPARE(version(u"1.2.3.4"_s, false), u"1.2"_s);
        QCOMPARE(version(u"1.2"_s, true), u"1.2"_s);
        QCOMPARE(version(u"1.2.3.4.5"_s, false), u"1.2.3.4.5"_s);
    }

    void filterListsEndings()
    {
        QCOMPARE(AppHelper::getFileFilterString(u"Image"_s, {u"jpg"_s, u"*.png"_s, u"."_s, u".bmp"_s}),
                 u"Image (*.jpg *.png *.bmp);"_s);
        QCOMPARE(AppHelper::getFileFilterString(u"All"_s, {}), u"All "_s);
        QCOMPARE(AppHelper::getFileFilterString({}, {u"xml"_s}), u"(*.xml);"_s);
    }

    void resourcesAreFoundByTheEndOfTheirPath()
    {
        QCOMPARE(AppHelper::findInResources(u"Tick.SVG"_s), u"qrc:/one/Tick.SVG"_s);
        QCOMPARE(AppHelper::findInResources(u"/tick.svg"_s), u"qrc:/two/tick.svg"_s);
        QVERIFY(AppHelper::findInResources(u"TICK.svg"_s).endsWith("/tick.svg"_L1, Qt::CaseInsensitive));
        QVERIFY(AppHelper::findInResources(u"tock.svg"_s).isNull());
    }
};

int main(int argc, char *argv[])
{
    if (argc > 2 && std::strcmp(argv[1], MarkArgument) == 0)
        return QFile(QFile::decodeName(argv[2])).open(QIODevice::WriteOnly) ? 0 : 1;
    const QCoreApplication app(argc, argv);
    if (argc > 1 && std::strcmp(argv[1], SleepArgument) == 0)
        return QCoreApplication::exec();
    TestAppHelper test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_apphelper.moc"
