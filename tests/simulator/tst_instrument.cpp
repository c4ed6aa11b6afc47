#include "simulator/instrument.h"
#include "simulator/scenario.h"

#include <QBuffer>
#include <QDir>
#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double StepSeconds = 0.2;

QStringList fieldsAfter(Instrument &instrument, int steps)
{
    QString status;
    for (int i = 0; i < steps; ++i)
        status = instrument.step().constLast();
    return status.split(u',');
}

int hexField(const QStringList &fields, qsizetype fromEnd)
{
    bool ok = false;
    const int value = fields[fields.size() - fromEnd].toInt(&ok, 16);
    return ok ? value : -1;
}

/// The status messages of a session with commands at fixed steps.
QStringList session(quint32 seed, int steps)
{
    InstrumentOptions options;
    options.seed = seed;
    Instrument instrument(options);
    QStringList all;
    for (int step = 0; step < steps; ++step) {
        if (step == 10)
            instrument.handle(u"irmode=m"_s);
        if (step % 50 == 0)
            instrument.handle(u"rotate=%1"_s.arg(step / 50 % 5));
        all += instrument.step();
    }
    return all;
}

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

class TestInstrument : public QObject
{
    Q_OBJECT

private slots:
    void drumFollowsWithFiniteAcceleration()
    {
        const auto check = [](double from, double to, double trim, bool powered, double expected) {
            const auto started = [=] {
                Drum drum;
                drum.command(from);
                drum.advance(10, true);
                drum.setTrim({trim, 1.0, 1.0});
                drum.command(to);
                return drum;
            };
            Drum drum = started();
            QCOMPARE(drum.speed(), from);
            const qint64 counterBefore = drum.counter();

            // Integrated in steps so fine that the form of the ramp does not matter.
            double rotations = 0.0;
            for (int i = 0; i < 40'000; ++i) {
                const double before = drum.speed();
                const qint64 counter = drum.counter();
                drum.advance(0.0001, powered);
                QVERIFY(std::abs(drum.speed() - before) <= 0.0001 * Drum::Deceleration + 1e-12);
                QVERIFY(drum.counter() >= counter);
                rotations += (before + drum.speed()) / 2.0 * 0.0001;
            }
            QVERIFY(std::abs(drum.speed() - expected) < 1e-12);
            QVERIFY(std::abs(double(drum.counter() - counterBefore) - rotations * 1000.0) <= 1.0);

            // The same four seconds in the instrument's own steps.
            Drum coarse = started();
            for (int i = 0; i < 20; ++i)
                coarse.advance(StepSeconds, powered);
            QVERIFY(std::abs(double(coarse.counter() - drum.counter())) <= 1.0);
        };
        constexpr double FullSpeed = 4.743589743589744;
        check(0.0, 1e9, 1.0, true, FullSpeed);
        check(2.0, -3.0, 1.0, true, 0.0);
        check(4.0, 1.5, 1.0, true, 1.5);
        check(0.0, 1.0, 1.25, true, 1.25);
        check(3.0, 3.0, 1.0, false, 0.0);
    }

    void statusHasItsFieldsWhereReadersLook()
    {
        InstrumentOptions options;
        options.scenario = read("1 2 on\n1 4 on").scenario;
        for (const auto &[mode, lanes] : {std::pair(u"irmode=r"_s, 4), {u"irmode=m"_s, 7}}) {
            Instrument instrument(options);
            instrument.handle(mode);
            instrument.handle(u"rotate=2"_s);
            int clock = hexField(fieldsAfter(instrument, 1), 1);
            for (int step = 2; step < 1000; ++step) {
                const QStringList fields = fieldsAfter(instrument, 1);
                QVERIFY(fields.size() >= lanes + 5);
                QCOMPARE(fields.first(2), QStringList({u"S"_s, u"1"_s}));
                QCOMPARE(hexField(fields, 2), int(instrument.drum().counter()));
                QCOMPARE(hexField(fields, 1), clock += 200);
                for (int lane = 0; lane < lanes; ++lane) {
                    const bool covered = step >= 5 && (lane == 1 || lane == 3);
                    const int reading = hexField(fields, 2 + lanes - lane);
                    QVERIFY2(std::abs(reading - (covered ? 20 : 40)) <= 5, qPrintable(fields.join(u',')));
                }
            }
        }
    }

    void fasterDrumsThrowMoreAnimalsOff()
    {
        using State = Animal::State;
        double before = 0.0;
        for (const double effort : {0.0, 0.35, 0.7, 1.0}) {
            int falls = 0;
            int stepsOnDrum = 0;
            for (quint32 seed = 0; seed < 7; ++seed) {
                Animal animal(seed);
                for (int step = 0; step < 18'000; ++step) {
                    const State state = animal.state();
                    animal.step(effort);
                    falls += animal.state() == State::Fallen && state != State::Fallen;
                    const bool onDrum = animal.state() == State::Running || animal.state() == State::Slipping;
                    stepsOnDrum += onDrum;
                    QVERIFY(onDrum || animal.state() == State::SteppingOn || !animal.covers());
                }
            }
            const double fallsPerStep = double(falls) / stepsOnDrum;
            QVERIFY2(falls > 0 && fallsPerStep > before * 1.5, qPrintable(QString::number(effort)));
            before = fallsPerStep;
        }

        const QStringList first = session(7, 3000);
        QCOMPARE(session(7, 3000), first);
        QVERIFY(session(8, 3000) != first);
    }

    void commandsAreAnsweredAndObeyed()
    {
        const auto answer = [](const QString &question, const QStringList &commands = {}) {
            InstrumentOptions options;
            options.serialNumber = u"000000"_s;
            options.firmware = u"3.1"_s;
            Instrument instrument(options);
            QString unasked;
            for (const QString &command : commands)
                unasked += instrument.handle(command).answer;
            return unasked + instrument.handle(question).answer;
        };
        QCOMPARE(answer(u"whois"_s), u"iamspinbar"_s);
        QCOMPARE(answer(u"Whois"_s), QString());
        QCOMPARE(answer(u"whois"_s, {u"ppp"_s}), u"iamspinbar"_s); // keep-alives run together
        QCOMPARE(answer(u"version"_s), u"version=3.1"_s);
        QCOMPARE(answer(u"sn"_s, {u"writesn=B42611123"_s}), u"sn=B42611123"_s);
        QCOMPARE(answer(u"sn"_s, {u"writesn=B1"_s, u"writesn="_s}), u"sn="_s);
        QCOMPARE(answer(u"sn"_s, {u"writesn=\\["_s}), u"sn=000000"_s); // it would break frames
        // The backslash is of the sender's encoder.
        QCOMPARE(answer(u"sn"_s, {u"writesn=B42611124\\"_s}), u"sn=B42611124"_s);
        QCOMPARE(answer(u"getSettings"_s, {u"setMotorCoeff=1.05"_s, u"setMotorAcc=0.9"_s, u"setMotorDec=2"_s,
                                           u"setCurrentCoeff=12.5"_s}),
                 u"MCC:1.05,MAC:0.9,MDC:2,CUR:12.5"_s);
        QCOMPARE(answer(u"getSettings"_s, {u"setMotorCoeff=1e300"_s, u"setMotorAcc=nan"_s, u"setMotorDec="_s,
                                           u"setCurrentCoeff=-1"_s}),
                 u"MCC:2,MAC:1,MDC:1,CUR:1"_s);
    }

    void stopEndsReportAndMotion()
    {
        Instrument instrument;
        QVERIFY(!instrument.isReporting());
        instrument.handle(u"statusOn"_s);
        instrument.handle(u"rotate=3"_s);
        for (const QString &bad :
             {u"rotate="_s, u"rotate=x"_s, u"rotate=nan"_s, u"rotate=inf"_s, u"rotate"_s}) {
            QCOMPARE(instrument.handle(bad).outcome, Instrument::Outcome::Ignored);
            QCOMPARE(instrument.drum().commandedSpeed(), 3.0);
        }
        instrument.handle(u"grid=7.5"_s);
        QVERIFY(instrument.isReporting());
        const QString running = fieldsAfter(instrument, 10).join(u',');
        QVERIFY2(running.startsWith(u"S,1,4B,BB8,"_s), qPrintable(running));
        const qint64 counter = instrument.drum().counter();
        instrument.handle(u"stop"_s);
        QVERIFY(!instrument.isReporting());
        QVERIFY(fieldsAfter(instrument, 10).join(u',').startsWith(u"S,1,0,0,"_s));
        QCOMPARE(instrument.drum().counter(), counter);
    }

    void linesAreEvents()
    {
        const auto events = [](const QByteArray &text) {
            const Scenario::Result result = read(text);
            QStringList all;
            for (const ScenarioEvent &event : result.scenario.events)
                all.append(written(event));
            return result.error.isEmpty() ? all.join(u'|') : result.error;
        };
        QCOMPARE(events("# a\n\n   \t\n#"), QString());
        QCOMPARE(events("1.25 7 on # falls"), u"1250 lane 6 1"_s);
        QCOMPARE(events("  0\t1  off  \r\n3 power off\r\n"), u"0 lane 0 0|3000 power 0"_s);
        QCOMPARE(events("2 link off\n3 link off 0.5"), u"2000 link -1|3000 link 500"_s);
        QCOMPARE(events("4 send  S,1, 2  #x"), u"4000 send S,1, 2"_s);
        QCOMPARE(events("4 send " + QByteArray(992, 'x') + '\n'), u"4000 send "_s + QString(992, u'x'));
        // By time, then by line.
        QCOMPARE(events("5 1 on\n1 2 on\n5 1 off"), u"1000 lane 1 1|5000 lane 0 1|5000 lane 0 0"_s);
    }

    void badLinesAreToldWithTheirNumber()
    {
        const auto check = [](const QByteArray &line, const QString &shown) {
            const Scenario::Result result = read("1 1 on\n# fine\n" + line + "\n2 1 on\n");
            QCOMPARE(result.error, u"file.txt:3: not an event: "_s + shown);
            QVERIFY(result.scenario.events.isEmpty());
        };
        const QString bad = u"1;1 1;on 1 on;-1 1 on;nan 1 on;inf 1 on;1e300 1 on;1,5 1 on;1 0 on;1 8 on;"
                            "1 99999999999999999999 on;1 1 On;1 1 on off;1 power;1 power up;1 link on;"
                            "1 link off x;1 link off -1;1 link off 1 2;1 send;1 jump on"_s;
        for (const QString &line : bad.split(u';'))
            check(line.toUtf8(), line);
        check(QByteArray("1 send a\0b", 10), u"1 send a?b"_s);
        check("1 send \xff\xfe", u"1 send ??"_s);
        check("1 send " + QByteArray(993, 'x'), u"1 send "_s + QString(193, u'x'));
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
        const QFileInfoList files = QDir(QStringLiteral(SPINBAR_SCENARIOS)).entryInfoList({u"*.txt"_s});
        QVERIFY(files.size() >= 3);
        for (const QFileInfo &file : files)
            QCOMPARE(Scenario::readFile(file.filePath()).error, QString());
    }
};

QTEST_GUILESS_MAIN(TestInstrument)
#include "tst_instrument.moc"
