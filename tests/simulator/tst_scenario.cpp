#include "simulator/instrument.h"
#include "simulator/scenario.h"

#include <QBuffer>
#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

Scenario::Result read(QByteArray text)
{
    QBuffer buffer(&text);
    buffer.open(QIODevice::ReadOnly);
    return Scenario::read(buffer, u"file.txt"_s);
}

/// One line of text an event, for comparison.
QString written(const ScenarioEvent &event)
{
    const QString at = QString::number(event.atMs);
    switch (event.kind) {
    case ScenarioEvent::Kind::Lane:
        return u"%1 lane %2 %3"_s.arg(at).arg(event.lane).arg(event.on);
    case ScenarioEvent::Kind::Power:
        return u"%1 power %2"_s.arg(at).arg(event.on);
    case ScenarioEvent::Kind::LinkOff:
        return u"%1 link %2"_s.arg(at).arg(event.durationMs);
    case ScenarioEvent::Kind::Send:
        return u"%1 send %2"_s.arg(at, event.text);
    }
    return {};
}

} // namespace

class TestScenario : public QObject
{
    Q_OBJECT

private slots:
    void linesAreEvents_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("events");
        const auto row = [](const char *name, const QByteArray &text, const QStringList &events) {
            QTest::newRow(name) << text << events;
        };
        row("nothing", "", {});
        row("comments and blanks", "# a\n\n   \t\n#", {});
        row("lane", "1.25 7 on # falls", {u"1250 lane 6 1"_s});
        row("line ends and blanks", "  0\t1  off  \r\n3 power off\r\n", {u"0 lane 0 0"_s, u"3000 power 0"_s});
        row("link", "2 link off\n3 link off 0.5", {u"2000 link -1"_s, u"3000 link 500"_s});
        row("raw message", "4 send  S,1, 2  #x", {u"4000 send S,1, 2"_s});
        row("longest line", "4 send " + QByteArray(992, 'x') + '\n', {u"4000 send "_s + QString(992, u'x')});
        row("by time, then by line", "5 1 on\n1 2 on\n5 1 off",
            {u"1000 lane 1 1"_s, u"5000 lane 0 1"_s, u"5000 lane 0 0"_s});
    }

    void linesAreEvents()
    {
        QFETCH(QByteArray, text);
        const Scenario::Result result = read(text);
        QCOMPARE(result.error, QString());
        QStringList events;
        for (const ScenarioEvent &event : result.scenario.events)
            events.append(written(event));
        QTEST(events, "events");
    }

    void badLinesAreToldWithTheirNumber_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QString>("shown");
        const auto row = [](const QByteArray &line, const QString &shown = {}) {
            QTest::newRow(shown.isEmpty() ? line.constData() : qPrintable(shown.left(20)))
                << line << (shown.isEmpty() ? QString::fromUtf8(line) : shown);
        };
        for (const char *line : {"1",
                                 "1 1",
                                 "on 1 on",
                                 "-1 1 on",
                                 "nan 1 on",
                                 "inf 1 on",
                                 "1e300 1 on",
                                 "1,5 1 on",
                                 "1 0 on",
                                 "1 8 on",
                                 "1 99999999999999999999 on",
                                 "1 1 On",
                                 "1 1 on off",
                                 "1 power",
                                 "1 power up",
                                 "1 link on",
                                 "1 link off x",
                                 "1 link off -1",
                                 "1 link off 1 2",
                                 "1 send",
                                 "1 jump on"})
            row(line);
        row(QByteArray("1 send a\0b", 10), u"1 send a?b"_s);
        row("1 send \xff\xfe", u"1 send ??"_s);
        row("1 send " + QByteArray(993, 'x'), u"1 send "_s + QString(193, u'x'));
    }

    void badLinesAreToldWithTheirNumber()
    {
        QFETCH(QByteArray, line);
        QFETCH(QString, shown);
        const Scenario::Result result = read("1 1 on\n# fine\n" + line + "\n2 1 on\n");
        QCOMPARE(result.error, u"file.txt:3: not an event: "_s + shown);
        QVERIFY(result.scenario.events.isEmpty());
    }

    void eventsHappenWithTheStepThatReachesThem()
    {
        InstrumentOptions options;
        options.scenario = read("0 power off\n0.4 send hi\n0.5 power on\n1 link off 0\n2 link off 1\n"
                                "2.4 link off 0.2\n4 link off 1\n4.2 link off")
                               .scenario;
        Instrument instrument(options);
        QString power;
        QString link;
        for (int step = 1; step <= 30; ++step) {
            const QStringList said = instrument.step();
            QCOMPARE(said.size(), step == 2 ? 2 : 1);
            QVERIFY(step != 2 || said.constFirst() == u"hi"_s);
            power += said.constLast().section(u',', 1, 1);
            link += instrument.isLinkUp() ? u'1' : u'0';
        }
        QCOMPARE(power, u"00"_s + QString(28, u'1'));
        // A cut of no length lasts for a step; the shorter one inside a longer one changes nothing.
        QCOMPARE(link, u"111101111000001111100000000000"_s);
    }

    void theScenariosThatComeAlongAreGood()
    {
        const QDir folder(QStringLiteral(SPINBAR_SCENARIOS));
        const QStringList files = folder.entryList({u"*.txt"_s});
        QVERIFY(files.size() >= 3);
        for (const QString &file : files)
            QCOMPARE(Scenario::readFile(folder.filePath(file)).error, QString());
    }
};

QTEST_GUILESS_MAIN(TestScenario)
#include "tst_scenario.moc"
