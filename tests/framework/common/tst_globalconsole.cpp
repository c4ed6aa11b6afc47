#include "framework/common/globalconsole.h"
#include "framework/common/globalconsolewriter.h"
#include "framework/common/nlogger.h"

#include "files.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

const QDateTime Noon(QDate(2026, 11, 23), QTime(12, 0, 1, 123));

} // namespace

class TestGlobalConsole : public QObject
{
    Q_OBJECT

private slots:
    // First: the process's first log line fixes its file for all tests that follow.
    void initTestCase()
    {
        QLoggingCategory::setFilterRules(u"spinbar.console.debug=false"_s);
        QVERIFY(m_folder.isValid());
        NLogger::setLoggerPath(m_folder.filePath(u"day-"_s));
        NLogger::Log(u"first"_s, true);
        const QDir folder(m_folder.path());
        QCOMPARE(folder.entryList(QDir::Files).size(), 1);
        m_log = folder.filePath(folder.entryList(QDir::Files).constFirst());
        QVERIFY2(QRegularExpression(u"/day-\\d{4}\\.\\d\\d\\.\\d\\d\\.log$"_s).match(m_log).hasMatch(),
                 qPrintable(m_log));
    }

    void init()
    {
        GlobalConsole::freeData();
        QFile::remove(m_log);
    }

    void entriesAreStampedAndPublished()
    {
        const QSignalSpy entries(GlobalConsole::Instance(), &GlobalConsole::newEntry);
        GlobalConsole::writeLine(u"x"_s, Noon);
        GlobalConsole::writeItem(u"lost"_s, u"Error"_s, Noon);
        GlobalConsole::disableType(u"ERROR"_s);
        GlobalConsole::writeItem(u"dropped"_s, u"error"_s, Noon);
        GlobalConsole::disableType(u"error"_s, false);
        GlobalConsole::writeItem(u"back"_s, u"Error"_s, Noon);
        GlobalConsole::disableType({});
        GlobalConsole::writeLine({}, Noon);
        QStringList told;
        for (const QList<QVariant> &entry : entries)
            told += entry.constFirst().toString();
        QCOMPARE(told, QStringList({u"12:00:01.123 x"_s, u"12:00:01.123 Error lost"_s,
                                    u"12:00:01.123 Error back"_s, u"12:00:01.123 "_s}));
        const QString untyped = u"12:00:01.123 \r\n\n12:00:01.123 x\r\n"_s;
        const QString typed = u"12:00:01.123 Error back\r\n\n12:00:01.123 Error lost\r\n"_s;
        const QString all = GlobalConsole::currentText();
        QVERIFY(all == untyped + typed || all == typed + untyped);
        QVERIFY(!QFile::exists(m_log));
    }

    void streamWritesAnEntryForEachOperand()
    {
        const QSignalSpy entries(GlobalConsole::Instance(), &GlobalConsole::newEntry);
        ntDebug() << "é" << 'c' << short(-7) << 1'000'000 << 0.5F << 1234567.0 << u"end"_s;
        QStringList said;
        for (const QList<QVariant> &entry : entries)
            said += entry.constFirst().toString().section(u' ', 1);
        QCOMPARE(said,
                 QStringList({u"é"_s, u"c"_s, u"-7"_s, u"1000000"_s, u"0.5"_s, u"1.23457e+06"_s, u"end"_s}));
    }

    void averageLagsOneSampleBehind()
    {
        const QSignalSpy values(GlobalConsole::Instance(), &GlobalConsole::updatedAverage);
        const QSignalSpy names(GlobalConsole::Instance(), &GlobalConsole::newAverageName);
        const auto mean = [](const QString &name, const QList<double> &samples, int limit) {
            for (const double sample : samples)
                GlobalConsole::countAverage(name, sample, limit);
            return GlobalConsole::getAverage(name);
        };
        QCOMPARE(mean(u"a"_s, {10, 20}, 5), 20.0);
        QCOMPARE(mean(u"a"_s, {30}, 5), 25.0);
        QCOMPARE(mean(u"b"_s, {0, 0, 0, 9, 9}, 3), 5.0); // from the third on each weighs a third
        QCOMPARE(mean(u"c"_s, {10, 20, 40}, 0), 40.0);
        QCOMPARE(values.constLast().at(1).toDouble(), 40.0);
        QCOMPARE(values.size(), 11);
        QCOMPARE(names.size(), 3);
        QCOMPARE(GlobalConsole::getAverageNames(), QStringList({u"a"_s, u"b"_s, u"c"_s}));
    }

    void statusesTellTheirNamesOnce()
    {
        QStringList told;
        const GlobalConsole *console = GlobalConsole::Instance();
        connect(console, &GlobalConsole::updatedStatus, this,
                [&](const QString &name, const QString &value) { told += name + '=' + value; });
        connect(console, &GlobalConsole::newStatusName, this,
                [&](const QString &name) { told += '+' + name; });
        connect(console, &GlobalConsole::statusCleared, this,
                [&](const QString &name) { told += '-' + name; });
        GlobalConsole::clearStatus({});
        GlobalConsole::setStatus(u"b"_s, u"1"_s);
        GlobalConsole::setStatus(u"b"_s, u"2"_s);
        GlobalConsole::setStatus(u"a"_s, u"3"_s);
        QCOMPARE(GlobalConsole::getStatusNames(), QStringList({u"a"_s, u"b"_s}));
        GlobalConsole::clearStatus(u"a"_s);
        QCOMPARE(GlobalConsole::getStatus(u"a"_s), QString());
        QCOMPARE(GlobalConsole::getStatus(u"b"_s), u"2"_s);
        GlobalConsole::clearStatus({});
        QVERIFY(GlobalConsole::getStatusNames().isEmpty());
        QCOMPARE(told,
                 QStringList({u"-"_s, u"b=1"_s, u"+b"_s, u"b=2"_s, u"a=3"_s, u"+a"_s, u"-a"_s, u"-"_s}));
    }

    void consoleLogsToTheFirstFile()
    {
        const QString other = m_folder.filePath(u"other.log"_s);
        GlobalConsole::enableLogging(true, other);
        GlobalConsole::writeItem(u"text"_s, u"Error"_s, Noon);
        GlobalConsole::writeLine(u"<b>%s\tÄ</b>"_s, Noon);
        GlobalConsole::enableLogging(false);
        GlobalConsole::writeLine(u"not logged"_s);
        NLogger::LogToFile(u"direct"_s, other, false);
        QVERIFY(!QFile::exists(other));
        const QString log = QString::fromUtf8(contents(m_log));
        const QRegularExpression form(
            u"^(\\d\\d:\\d\\d:\\d\\d\\.\\d{3})\tError\t12:00:01\\.123 Error text\r\n"
            "(?1)\t12:00:01\\.123 <b>%s\tÄ</b>\r\n(?1)\tdirect\r\n$"_s);
        QVERIFY2(form.match(log).hasMatch(), qPrintable(log));
    }

    void fileThatCannotBeWrittenLosesOnlyItsLines()
    {
        QVERIFY(QDir().mkdir(m_log));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"No log line can be written"_s));
        NLogger::LogToFile(u"lost"_s, u"x"_s, true);
        NLogger::LogToFile(u"lost too"_s, u"x"_s, true);
        QVERIFY(QDir().rmdir(m_log));
        NLogger::LogToFile(QString(QChar(0)) + QChar(0xD800) + u"kept"_s, u"x"_s, true);
        QVERIFY(contents(m_log).endsWith("kept\r\n"));
        QCOMPARE(contents(m_log).count('\n'), 1);
    }

    void linesOfManyThreadsStayWhole()
    {
        constexpr int Threads = 4;
        constexpr int Lines = 2'500;
        std::vector<std::thread> threads;
        for (int number = 0; number < Threads; ++number) {
            threads.emplace_back([number] {
                for (int line = 0; line < Lines; ++line)
                    NLogger::LogToFile(QString::number(number), QString(200, u'ж') + QString::number(line),
                                       u"x"_s, true);
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        const QStringList lines = QString::fromUtf8(contents(m_log)).split(u"\r\n"_s, Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), Threads * Lines);
        QList<int> next(Threads, 0);
        for (const QString &line : lines) {
            const QStringList fields = line.split(u'\t');
            QCOMPARE(fields.size(), 3);
            QCOMPARE(fields[2], QString(200, u'ж') + QString::number(next[fields[1].toInt()]++));
        }
    }

    void standardFileIsNamedByProgramAndMoment()
    {
        QCoreApplication::setApplicationName(u"Spinbar"_s);
        static const QRegularExpression form(u"^/.+/Spinbar_[\\d.]{10}-[\\d.]{8}\\.log$"_s);
        const QString path = NLogger::standardLogFilePath();
        QVERIFY2(form.match(path).hasMatch(), qPrintable(path));
    }

private:
    QTemporaryDir m_folder;
    QString m_log;
};

QTEST_GUILESS_MAIN(TestGlobalConsole)
#include "tst_globalconsole.moc"
