#include "service/toolrun.h"

#include "bundlemaker.h"
#include "rows.h"

#include <QSignalSpy>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

using End = ToolRun::End;

Q_DECLARE_METATYPE(ToolRun::End)

class TestToolRun : public QObject
{
    Q_OBJECT

private slots:
    void endsWithTheTool_data()
    {
        const auto row = columns<QByteArray, End, bool, QString>("behaviour", "end", "failure", "trouble");
        row("success", "succeed", End::Exited, false, {});
        row("failure in capitals", "fail", End::Exited, true, {});
        row("on the error output", "complain", End::Exited, true, {});
        row("exit code", "code", End::Exited, false, u"the code 3"_s);
        row("crash", "crash", End::Crashed, false, u"crashed"_s);
        row("silence", "silent", End::Silent, false, u"silent for too long"_s);
    }

    void endsWithTheTool()
    {
        QFETCH(QByteArray, behaviour);
        const QString conf = m_dir.filePath(u"the conf"_s);
        QVERIFY(writeFile(conf, behaviour));
        ToolRun run(nullptr, behaviour == "silent" ? 200ms : ToolRun::DefaultSilence);
        const QSignalSpy finished(&run, &ToolRun::finished);
        run.start(u"\"" SPINBAR_TEST_TOOL "\" \"-C%1\" -v"_s.arg(conf));
        QCOMPARE(finished.size(), 0);
        QTRY_COMPARE(finished.size(), 1);
        QTEST(run.end(), "end");
        QTEST(run.output().tellsFailure(), "failure");
        QFETCH(QString, trouble);
        QVERIFY2(run.trouble().contains(trouble), qPrintable(run.trouble()));
        QCOMPARE(run.trouble().isEmpty(), trouble.isEmpty());
        QVERIFY(run.output().shownText().startsWith("-C"_L1 + conf + "\n-v\n"_L1));
    }

    void whatCannotStartEnds()
    {
        QVERIFY(writeFile(m_dir.filePath(u"text"_s), "no program"));
        for (const QString &program :
             {m_dir.filePath(u"missing"_s), m_dir.filePath(u"text"_s), m_dir.path()}) {
            ToolRun run;
            const QSignalSpy finished(&run, &ToolRun::finished);
            run.start(u'"' + program + u'"');
            QCOMPARE(finished.size(), 0);
            QTRY_COMPARE(finished.size(), 1);
            QCOMPARE(run.end(), End::NotStarted);
            QCOMPARE(run.output().shownText(), QString());
        }
    }

    void floodLeavesTimeAndMemory()
    {
        const QString conf = m_dir.filePath(u"flood"_s);
        QVERIFY(writeFile(conf, "flood"));
        ToolRun run;
        const QSignalSpy finished(&run, &ToolRun::finished);
        int longestPauseMs = 0;
        QElapsedTimer pause;
        QTimer others;
        connect(&others, &QTimer::timeout, this,
                [&] { longestPauseMs = std::max(longestPauseMs, int(pause.restart())); });
        pause.start();
        others.start(5ms);
        run.start(u"\"" SPINBAR_TEST_TOOL "\" \"-C%1\""_s.arg(conf));
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 60'000);
        QVERIFY(run.output().totalBytes() > 100 * 1024 * 1024);
        QCOMPARE(run.output().shownText().size(), ToolOutput::MaxShownBytes);
        QVERIFY2(longestPauseMs < 1000, qPrintable(QString::number(longestPauseMs)));
    }

    void failureIsFoundWhereverItStands()
    {
        const auto tellsFailure = [](const QByteArrayList &chunks) {
            ToolOutput output;
            for (const QByteArray &chunk : chunks)
                output.append(chunk);
            return output.tellsFailure();
        };
        QVERIFY(tellsFailure({"Inva", "l", "id"}));
        QVERIFY(tellsFailure({"CAN'T", QByteArray(100'000, '.')}));
        QVERIFY(!tellsFailure({"fail", " ed", "cannot", "in valid"}));
    }

    void progressIsDrawnOverItself()
    {
        ToolOutput output;
        output.append("start\r\nWriting | #  |\rWriting | ## |\r\n");
        output.append("done\r");
        QCOMPARE(output.shownText(), u"start\nWriting | ## |\ndone"_s);
    }

private:
    QTemporaryDir m_dir;
};

QTEST_GUILESS_MAIN(TestToolRun)
#include "tst_toolrun.moc"
