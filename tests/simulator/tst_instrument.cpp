#include "simulator/instrument.h"

#include <QBuffer>
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

/// The lanes' readings in the order of the lanes.
QList<int> readings(const QStringList &fields, int lanes)
{
    QList<int> values;
    for (int lane = 0; lane < lanes; ++lane)
        values.append(hexField(fields, 2 + lanes - lane));
    return values;
}

InstrumentOptions seeded(quint32 seed)
{
    InstrumentOptions options;
    options.seed = seed;
    return options;
}

/// The status messages of a session with commands at fixed steps.
QStringList session(quint32 seed, int steps)
{
    Instrument instrument(seeded(seed));
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

} // namespace

class TestInstrument : public QObject
{
    Q_OBJECT

private slots:
    void drumFollowsWithFiniteAcceleration_data()
    {
        QTest::addColumn<double>("from");
        QTest::addColumn<double>("to");
        QTest::addColumn<double>("trim");
        QTest::addColumn<bool>("powered");
        QTest::addColumn<double>("expected");
        QTest::newRow("full speed") << 0.0 << 4.743589743589744 << 1.0 << true << 4.743589743589744;
        QTest::newRow("beyond the limit") << 0.0 << 1e9 << 1.0 << true << 4.743589743589744;
        QTest::newRow("backwards") << 2.0 << -3.0 << 1.0 << true << 0.0;
        QTest::newRow("slower") << 4.0 << 1.5 << 1.0 << true << 1.5;
        QTest::newRow("trimmed") << 0.0 << 1.0 << 1.25 << true << 1.25;
        QTest::newRow("power fails") << 3.0 << 3.0 << 1.0 << false << 0.0;
    }

    void drumFollowsWithFiniteAcceleration()
    {
        QFETCH(double, from);
        QFETCH(double, to);
        QFETCH(bool, powered);
        QFETCH(double, trim);
        QFETCH(double, expected);
        Drum drum;
        drum.command(from);
        drum.advance(10, true);
        QCOMPARE(drum.speed(), from);
        const qint64 counterBefore = drum.counter();
        drum.setTrim({trim, 1.0, 1.0});
        drum.command(to);

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
        Drum coarse;
        coarse.command(from);
        coarse.advance(10, true);
        coarse.setTrim({trim, 1.0, 1.0});
        coarse.command(to);
        for (int i = 0; i < 20; ++i)
            coarse.advance(StepSeconds, powered);
        QVERIFY(std::abs(double(coarse.counter() - drum.counter())) <= 1.0);
    }

    void statusHasItsFieldsWhereReadersLook_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::addColumn<int>("lanes");
        QTest::addColumn<int>("fewestFields");
        QTest::newRow("rats") << u"irmode=r"_s << 4 << 9;
        QTest::newRow("mice") << u"irmode=m"_s << 7 << 12;
    }

    void statusHasItsFieldsWhereReadersLook()
    {
        QFETCH(QString, mode);
        QFETCH(int, lanes);
        QFETCH(int, fewestFields);
        InstrumentOptions options;
        QBuffer text;
        text.setData("1 2 on\n1 4 on");
        text.open(QIODevice::ReadOnly);
        options.scenario = Scenario::read(text, u"test"_s).scenario;
        Instrument instrument(options);
        instrument.handle(mode);
        instrument.handle(u"rotate=2"_s);
        int clock = hexField(fieldsAfter(instrument, 1), 1);
        for (int step = 2; step < 1000; ++step) {
            const QStringList fields = fieldsAfter(instrument, 1);
            QVERIFY(fields.size() >= fewestFields);
            QCOMPARE(fields[0], u"S"_s);
            QCOMPARE(fields[1], u"1"_s);
            QCOMPARE(hexField(fields, 2), int(instrument.drum().counter()));
            QCOMPARE(hexField(fields, 1), clock += 200);
            const QList<int> values = readings(fields, lanes);
            for (int lane = 0; lane < lanes; ++lane) {
                const bool covered = step >= 5 && (lane == 1 || lane == 3);
                const int nominal = covered ? 20 : 40;
                QVERIFY2(std::abs(values[lane] - nominal) <= 5, qPrintable(fields.join(u',')));
            }
        }
    }

    void sameSeedAndCommandsGiveTheSameMessages()
    {
        const QStringList first = session(7, 3000);
        QCOMPARE(session(7, 3000), first);
        QVERIFY(session(8, 3000) != first);
    }

    void fasterDrumsThrowMoreAnimalsOff()
    {
        double before = 0.0;
        for (const double effort : {0.0, 0.35, 0.7, 1.0}) {
            int falls = 0;
            int stepsOnDrum = 0;
            for (quint32 seed = 0; seed < 7; ++seed) {
                Animal animal(seed);
                for (int step = 0; step < 18'000; ++step) {
                    const Animal::State state = animal.state();
                    animal.step(effort);
                    falls += animal.state() == Animal::State::Fallen && state != Animal::State::Fallen;
                    const bool onDrum =
                        animal.state() == Animal::State::Running || animal.state() == Animal::State::Slipping;
                    stepsOnDrum += onDrum;
                    QVERIFY(onDrum || animal.state() == Animal::State::SteppingOn || !animal.covers());
                }
            }
            QVERIFY(falls > 0);
            const double fallsPerStep = double(falls) / stepsOnDrum;
            QVERIFY2(fallsPerStep > before * 1.5, qPrintable(QString::number(effort)));
            before = fallsPerStep;
        }
    }

    void commandsAreAnsweredAndObeyed_data()
    {
        QTest::addColumn<QStringList>("commands");
        QTest::addColumn<QString>("question");
        QTest::addColumn<QString>("answer");
        const auto row = [](const char *name, const QStringList &commands, const QString &question,
                            const QString &answer) { QTest::newRow(name) << commands << question << answer; };
        row("greeting", {}, u"whois"_s, u"iamspinbar"_s);
        row("greeting is case-sensitive", {}, u"Whois"_s, QString());
        row("version", {}, u"version"_s, u"version=3.1"_s);
        row("serial number", {}, u"sn"_s, u"sn=000000"_s);
        row("written serial number", {u"writesn=B42611123"_s}, u"sn"_s, u"sn=B42611123"_s);
        row("erased serial number", {u"writesn=B1"_s, u"writesn="_s}, u"sn"_s, u"sn="_s);
        row("serial number that would break frames", {u"writesn=\\["_s}, u"sn"_s, u"sn=000000"_s);
        row("backslash of the sender's encoder", {u"writesn=B42611124\\"_s}, u"sn"_s, u"sn=B42611124"_s);
        row("maker's values", {}, u"getSettings"_s, u"MCC:1,MAC:1,MDC:1,CUR:10"_s);
        row("maker's values set",
            {u"setMotorCoeff=1.05"_s, u"setMotorAcc=0.9"_s, u"setMotorDec=2"_s, u"setCurrentCoeff=12.5"_s},
            u"getSettings"_s, u"MCC:1.05,MAC:0.9,MDC:2,CUR:12.5"_s);
        row("maker's values out of range or no numbers",
            {u"setMotorCoeff=1e300"_s, u"setMotorAcc=nan"_s, u"setMotorDec="_s, u"setCurrentCoeff=-1"_s},
            u"getSettings"_s, u"MCC:2,MAC:1,MDC:1,CUR:1"_s);
        row("keep-alives run together", {u"ppp"_s}, u"whois"_s, u"iamspinbar"_s);
    }

    void commandsAreAnsweredAndObeyed()
    {
        QFETCH(QStringList, commands);
        QFETCH(QString, question);
        InstrumentOptions options;
        options.serialNumber = u"000000"_s;
        options.firmware = u"3.1"_s;
        Instrument instrument(options);
        for (const QString &command : commands)
            QCOMPARE(instrument.handle(command).answer, QString());
        QTEST(instrument.handle(question).answer, "answer");
    }

    void speedCommandsThatAreNoNumbersChangeNothing()
    {
        Instrument instrument;
        instrument.handle(u"rotate=1.500"_s);
        for (const QString &bad :
             {u"rotate="_s, u"rotate=x"_s, u"rotate=nan"_s, u"rotate=inf"_s, u"rotate"_s}) {
            QCOMPARE(instrument.handle(bad).outcome, Instrument::Outcome::Ignored);
            QCOMPARE(instrument.drum().commandedSpeed(), 1.5);
        }
    }

    void stopEndsReportAndMotion()
    {
        Instrument instrument;
        QVERIFY(!instrument.isReporting());
        instrument.handle(u"statusOn"_s);
        instrument.handle(u"rotate=3"_s);
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
};

QTEST_GUILESS_MAIN(TestInstrument)
#include "tst_instrument.moc"
