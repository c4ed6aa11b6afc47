#include "files.h"

#include <QFileInfo>
#include <QProcess>
#include <QSerialPort>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

const QString Program = QStringLiteral(SPINBAR_SIMULATOR);

struct Finished
{
    int exitCode = -1;
    QByteArray output;
    QByteArray errors;
};

Finished finished(const QStringList &arguments)
{
    QProcess process;
    process.start(Program, arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

} // namespace

class TestSimulatorProgram : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    QString m_link = m_folder.filePath(u"instrument"_s);

private slots:
    void wrongUsageEndsBeforeAnythingOpens()
    {
        const auto check = [this](const QStringList &arguments, const QString &message) {
            const Finished result = finished(QStringList{u"--link"_s, m_link} + arguments);
            QCOMPARE(result.exitCode, 2);
            QCOMPARE(result.output, QByteArray());
            QVERIFY2(result.errors.contains(message.toUtf8()), result.errors);
            QVERIFY(!QFileInfo(m_link).isSymLink());
        };
        const QString scenario = m_folder.filePath(u"bad %2.txt"_s);
        QVERIFY(writeFile(scenario, "1 1 on\n2 9 on\n"));
        check({u"--scenario"_s, scenario}, scenario + u":2: not an event: 2 9 on"_s);
        check({u"--scenario"_s, u"/dev/zero"_s}, u"/dev/zero:1: "_s);
        for (const QString &path : {u"/nowhere"_s, m_folder.path()}) {
            check({u"--scenario"_s, path}, path + u": "_s);
            check({u"--replay"_s, path}, path + u": "_s);
        }
        check({u"--replay"_s, u"a"_s, u"--scenario"_s, u"b"_s}, u"exclude"_s);
        for (const QString &rate : {u"0.99"_s, u"1001"_s, u"nan"_s})
            check({u"--rate"_s, rate}, u"--rate"_s);
        check({u"--seed"_s, u"1.5"_s}, u"--seed"_s);
        check({u"--serial"_s, u"a}b"_s}, u"serial"_s);
        check({u"--faster"_s}, u"faster"_s);
        check({u"now"_s}, u"now"_s);
        QCOMPARE(finished({u"--help"_s}).exitCode, 0);
    }

    void terminationIsNoFailureButALinkThatCannotBeMadeIs()
    {
        QProcess terminated;
        terminated.start(Program, {});
        QTRY_VERIFY(terminated.canReadLine());
        terminated.terminate();
        QVERIFY(terminated.waitForFinished());
        QCOMPARE(terminated.exitStatus(), QProcess::NormalExit);

        const QString taken = m_folder.filePath(u"taken"_s);
        QVERIFY(writeFile(taken, "kept"));
        const Finished result = finished({u"--link"_s, taken});
        QCOMPARE(result.exitCode, 1);
        QVERIFY(result.errors.contains(taken.toUtf8()));
        QCOMPARE(contents(taken), "kept");
    }

    void runsUntilASignalAndRemovesItsLink()
    {
        QProcess process;
        process.start(Program, {u"--link"_s, m_link, u"--serial"_s, QString(), u"--no-power"_s,
                                u"--verbose"_s, u"--rate"_s, u"1000"_s});
        QTRY_VERIFY(process.canReadLine());
        QCOMPARE(process.readLine(), "ready " + m_link.toUtf8() + '\n');

        QSerialPort port(m_link);
        QVERIFY(port.open(QIODevice::ReadWrite));
        port.write("{sn}p{writesn=B9}p{sn}{nonsense}{statusOn}");
        QByteArray heard;
        connect(&port, &QSerialPort::readyRead, this, [&] { heard += port.readAll(); });
        QTRY_VERIFY(heard.count("{S,") > 100);
        QVERIFY(heard.startsWith("{sn=}{sn=B9}{S,0,"));

        port.write("{rotate=1.000}");
        QByteArray report;
        QTRY_VERIFY((report += process.readAllStandardError()).contains("rotate"));
        QList<QByteArray> lines = report.trimmed().split('\n');
        const QByteArray last = lines.takeLast();
        QCOMPARE(lines, QList<QByteArray>({"command 5000 sn", "answer 5000 sn=", "command 5000 writesn=B9",
                                           "command 5000 sn", "answer 5000 sn=B9", "ignored 5000 nonsense",
                                           "command 5000 statusOn"}));
        QVERIFY2(last.startsWith("command ") && last.endsWith(" rotate=1.000"), last);
        QVERIFY(last.split(' ')[1].toLongLong() >= 5000 + 100 * 200);

        QCOMPARE(::kill(pid_t(process.processId()), SIGINT), 0);
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 0);
        QVERIFY(!QFileInfo(m_link).isSymLink());
    }
};

QTEST_GUILESS_MAIN(TestSimulatorProgram)
#include "tst_simulatorprogram.moc"
