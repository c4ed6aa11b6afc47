#include <QFile>
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

    QString file(const QString &name, const QByteArray &content)
    {
        QFile file(m_folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            return {};
        return file.fileName();
    }

private slots:
    void wrongUsageEndsBeforeAnythingOpens_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("message");
        const auto row = [](const QStringList &arguments, const QString &message) {
            QTest::newRow(qPrintable(arguments.join(u' '))) << arguments << message;
        };
        const QString scenario = file(u"bad %2.txt"_s, "1 1 on\n2 9 on\n");
        row({u"--scenario"_s, scenario}, scenario + u":2: not an event: 2 9 on"_s);
        row({u"--scenario"_s, u"/nowhere.txt"_s}, u"/nowhere.txt: "_s);
        row({u"--scenario"_s, u"/dev/zero"_s}, u"/dev/zero:1: "_s);
        row({u"--replay"_s, u"/nowhere.log"_s}, u"/nowhere.log: "_s);
        row({u"--replay"_s, m_folder.path()}, m_folder.path() + u": "_s);
        row({u"--replay"_s, u"a"_s, u"--scenario"_s, u"b"_s}, u"exclude"_s);
        row({u"--rate"_s, u"0.99"_s}, u"--rate"_s);
        row({u"--rate"_s, u"1001"_s}, u"--rate"_s);
        row({u"--rate"_s, u"nan"_s}, u"--rate"_s);
        row({u"--seed"_s, u"1.5"_s}, u"--seed"_s);
        row({u"--serial"_s, u"a}b"_s}, u"serial"_s);
        row({u"--faster"_s}, u"faster"_s);
        row({u"now"_s}, u"now"_s);
    }

    void wrongUsageEndsBeforeAnythingOpens()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, message);
        const Finished result = finished(QStringList{u"--link"_s, m_link} + arguments);
        QCOMPARE(result.exitCode, 2);
        QCOMPARE(result.output, QByteArray());
        QVERIFY2(result.errors.contains(message.toUtf8()), result.errors);
        QVERIFY(!QFileInfo(m_link).isSymLink());
    }

    void linkThatCannotBeMadeIsAFailure()
    {
        const QString taken = file(u"taken"_s, "kept");
        const Finished result = finished({u"--link"_s, taken});
        QCOMPARE(result.exitCode, 1);
        QVERIFY(result.errors.contains(taken.toUtf8()));
        QCOMPARE(QFileInfo(taken).size(), 4);
    }

    void runsUntilASignalAndRemovesItsLink_data()
    {
        QTest::addColumn<int>("signal");
        QTest::newRow("SIGINT") << SIGINT;
        QTest::newRow("SIGTERM") << SIGTERM;
    }

    void runsUntilASignalAndRemovesItsLink()
    {
        QFETCH(int, signal);
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

        QCOMPARE(::kill(pid_t(process.processId()), signal), 0);
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 0);
        QVERIFY(!QFileInfo(m_link).isSymLink());
    }

    void helpNamesEveryOption()
    {
        const Finished result = finished({u"--help"_s});
        QCOMPARE(result.exitCode, 0);
        for (const char *option : {"--link", "--serial", "--firmware", "--rate", "--seed", "--no-power",
                                   "--scenario", "--replay", "--verbose"})
            QVERIFY(result.output.contains(option));
    }
};

QTEST_GUILESS_MAIN(TestSimulatorProgram)
#include "tst_simulatorprogram.moc"
