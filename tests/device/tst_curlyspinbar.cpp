#include "device/curlyspinbar.h"

#include "detection/spinbardetection.h"
#include "device/newspinbar.h"
#include "rows.h"
#include "testline.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

/// A facade with an instrument at the end of its line.
struct Bench
{
    Bench()
        : line(u"COM4"_s)
        , ports({line.info()})
    {
        line.answers.insert("{whois}", "{iamspinbar}");
        line.answers.insert("{sn}", "{sn=B42403101}");
        line.answers.insert("{version}", "{version=1.7}");
        spinbar = std::make_unique<CurlySpinbar>(u"test"_s);
    }

    bool connect()
    {
        // The serial number is asked for twice, and each answer asks for the version.
        return QTest::qWaitFor([this] { return !spinbar->version().isEmpty(); }) && line.waitFor("{irmode=r}")
               && line.waitFor("{version}", 2);
    }

    /// What goes out for \a command, without keep-alive and second greeting.
    QByteArray sent(const std::function<void()> &command)
    {
        line.take();
        command();
        spinbar->device().send(u"end"_s);
        return line.waitFor("{end}")
                   ? line.take().replace("p{", "{").replace("{end}", "").replace("{whois}", "")
                   : QByteArray();
    }

    TestLine line;
    TestPorts ports;
    std::unique_ptr<CurlySpinbar> spinbar;
};

} // namespace

class TestCurlySpinbar : public QObject
{
    Q_OBJECT

private slots:
    void connectSetsTheInstrumentUp()
    {
        Bench bench;
        CurlySpinbar &spinbar = *bench.spinbar;
        QStringList log;
        connect(&spinbar, &BaseDevice::connected, this, [&log] { log.append(u"connected"_s); });
        connect(&spinbar, &BaseDevice::serialNumberFetched, this,
                [&] { log.append(spinbar.serialNumber()); });
        connect(&spinbar, &BaseDevice::versionFetched, this, [&] { log.append(spinbar.version()); });
        QCOMPARE(spinbar.status(), BaseDevice::NotConnected);
        QVERIFY(bench.connect());
        QCOMPARE(log.first(3), QStringList({u"connected"_s, u"B42403101"_s, u"B42403101"_s}));
        QVERIFY(log.contains(u"1.7"_s));
        const QByteArray received = bench.line.received;
        QVERIFY2(received.startsWith("{whois}{sn}{sn}{statusOn}{irmode=r}"), received.constData());
        QVERIFY(bench.line.waitFor("}p"));
    }

    void commandsReachTheInstrument()
    {
        Bench bench;
        QVERIFY(bench.connect());
        CurlySpinbar &spinbar = *bench.spinbar;
        QCOMPARE(bench.sent([&] { spinbar.setMotorSpeed(100); }), "{rotate=4.744}");
        QCOMPARE(bench.sent([&] { spinbar.setMotorSpeed(-1); }), "{rotate=0.000}");
        QCOMPARE(bench.sent([&] { spinbar.setMotorSpeed(qQNaN()); }), "{rotate=0.000}");
        QCOMPARE(bench.sent([&] { spinbar.setMotorSpeed(1.2345); }), "{rotate=1.234}");
        QCOMPARE(bench.sent([&] { spinbar.setAngularSpeed(6.283185307179586 * 2); }), "{rotate=2.000}");
        QCOMPARE(bench.sent([&] { spinbar.setGrid(20); }), "{grid=15.0}");
        QCOMPARE(bench.sent([&] { spinbar.setGrid(15); }), "");
        QCOMPARE(bench.sent([&] { spinbar.gridOff(); }), "{off}");
        QCOMPARE(bench.sent([&] { spinbar.gridOff(); }), "{off}");
        QCOMPARE(bench.sent([&] { spinbar.setGrid(-3); }), "");
        QCOMPARE(bench.sent([&] { spinbar.setGrid(0.5); }), "{grid=0.5}");
        QCOMPARE(bench.sent([&] { spinbar.setGrid(0.5); }), "");
        // 0.1 has no exact form in the 32 bits that are kept of it.
        QCOMPARE(bench.sent([&] { spinbar.setGrid(0.1); }), "{grid=0.1}");
        QCOMPARE(bench.sent([&] { spinbar.setGrid(0.1); }), "{grid=0.1}");
        QCOMPARE(bench.sent([&] { spinbar.writeSerialNumber(u"B4X"_s); }), "{writesn=B4X}");
        QSignalSpy mode(&spinbar, &CurlySpinbar::modeChanged);
        QCOMPARE(bench.sent([&] { spinbar.setRodentMode(CurlySpinbarDevice::Mice); }), "{irmode=m}");
        QCOMPARE(mode.size(), 1);
    }

    void readingsReachTheLanesOfTheMode()
    {
        Bench bench;
        QVERIFY(bench.connect());
        CurlySpinbar &spinbar = *bench.spinbar;
        SpinbarDetection::setTrailSeconds(0);
        QSignalSpy finished(&spinbar, &CurlySpinbar::detectionFinished);
        QSignalSpy status(&spinbar, &CurlySpinbar::newStatus);
        int sample = 0;
        const auto feed = [&](int count, const QByteArray &readings) {
            for (const int end = sample + count; sample < end; ++sample) {
                const qsizetype seen = status.size();
                bench.line.terminal.write("{S,1,0,0,0,0," + readings + ','
                                          + QByteArray::number(sample * 370, 16) + ','
                                          + QByteArray::number(1000 + sample * 200, 16) + '}');
                QTRY_COMPARE(status.size(), seen + 1);
                QCoreApplication::processEvents();
            }
        };
        feed(3, "28,28,14,28");
        QVERIFY(spinbar.isPowered());
        QVERIFY(spinbar.detectors().at(2)->isPresent());
        feed(1, "28,28,28,28");
        QCOMPARE(finished.size(), 1);
        // Found at 1400 and dated back by 600; 370 thousandths of the motor are 39 of the drum.
        QCOMPARE(finished.at(0), QVariantList({800, 1400, 39.0, 2, true}));
        feed(3, "14,28,28,28");
        spinbar.resetDetection();
        QVERIFY(!spinbar.detectors().first()->isPresent());
        QCOMPARE(spinbar.detectors().size(), 4);
        spinbar.setRodentMode(CurlySpinbarDevice::Mice);
        QCOMPARE(spinbar.detectors().size(), 7);
        feed(3, "28,28,28,28,28,28,14");
        QVERIFY(spinbar.detectors().at(6)->isPresent());
        QVERIFY(!spinbar.ratDetectors().first()->isPresent());
        SpinbarDetection::setTrailSeconds(3);
    }

    void messagesOfOneReadKeepTheirOwnClock()
    {
        Bench bench;
        QVERIFY(bench.connect());
        const SpinbarDetection *lane = bench.spinbar->detectors().constFirst();
        QStringList samples;
        connect(lane, &SpinbarDetection::calcsChanged, this, [&samples, lane] {
            samples.append(u"%1@%2"_s.arg(lane->lastValue()).arg(lane->lastClock()));
        });
        bench.line.terminal.write(
            "{S,1,0,28,28,28,28,0,3E8}{S,1,0,14,28,28,28,0,4B0}{S,1,0,15,28,28,28,0,578}");
        QTRY_COMPARE(samples, QStringList({u"40@1000"_s, u"20@1200"_s, u"21@1400"_s}));
    }

    void lostInstrumentIsFoundOnItsPortOnly()
    {
        Bench bench;
        QVERIFY(bench.connect());
        CurlySpinbar &spinbar = *bench.spinbar;
        TestLine other(u"COM5"_s);
        other.answers.insert("{whois}", "{iamspinbar}");
        QSignalSpy disconnected(&spinbar, &BaseDevice::disconnected);
        bench.line.terminal.close();
        QVERIFY(disconnected.wait());
        QVERIFY(!spinbar.isConnected());
        spinbar.setMotorSpeed(1);
        bench.line.take();
        QVERIFY(bench.line.terminal.open());
        bench.ports.set({other.info(), bench.line.info()});
        spinbar.device().connectionTimerHandler();
        QVERIFY(bench.line.waitFor("{statusOn}{irmode=r}"));
        QVERIFY(spinbar.isConnected());
        QVERIFY(!bench.line.received.contains("rotate"));
        QVERIFY(other.received.isEmpty());
    }

    void switchedOffLinkStillCountsAsConnected()
    {
        Bench bench;
        QVERIFY(bench.connect());
        CurlySpinbar &spinbar = *bench.spinbar;
        QSignalSpy connected(&spinbar, &BaseDevice::connected);
        spinbar.setLinkEnabled(false);
        QCoreApplication::processEvents();
        QVERIFY(spinbar.isConnected());
        QVERIFY(!spinbar.device().isConnected());
        bench.line.take();
        spinbar.setLinkEnabled(true);
        QVERIFY(bench.line.waitFor("{statusOn}{irmode=r}"));
        QCOMPARE(connected.size(), 0);
    }

    void speedsConvert_data()
    {
        const auto row = columns<double, int, int, int, double>("value", "from", "to", "isMouse", "result");
        constexpr double Pi = 3.141592653589793;
        row("top speed per minute", 4.743589743589744, 0, 2, 0, 30.0);
        row("drum from motor per second", 37.0 / 39, 0, 1, 1, 0.1);
        row("cm/s to m/s", 1.0, 4, 3, 0, 0.01);
        row("a rat drum of 7 cm", 1.0, 1, 4, 0, 7 * Pi);
        row("a mouse drum of 4 cm", 1.0, 1, 3, 1, 0.04 * Pi);
        row("any mouse flag but zero", 60.0, 2, 3, -2, 0.04 * Pi);
        row("km/h to m/s", 3.6, 5, 3, 1, 1.0);
        row("m/s to km/h", 1.0, 3, 5, 0, 3.6);
        row("cm/s to motor", 7 * Pi, 4, 0, 0, 370.0 / 39);
        row("unknown unit is the motor's", 370.0 / 39, 7, 2, 0, 60.0);
        row("to an unknown unit", 0.1, 0, 7, 0, 0.1);
        row("to the same unit", 0.1, 9, 9, 0, 0.1);
    }

    void speedsConvert()
    {
        QFETCH(double, value);
        QFETCH(int, from);
        QFETCH(int, to);
        QFETCH(int, isMouse);
        QFETCH(double, result);
        const double converted = CurlySpinbar::convertSpeed(value, from, to, isMouse);
        QVERIFY2(qAbs(converted - result) <= 1e-14 * result, qPrintable(QString::number(converted, 'g', 17)));
    }

    void lastDigitsFollowTheOrderOfTheOperations()
    {
        QCOMPARE_EQ(CurlySpinbar::convertSpeed(4.743589743589744, 0, 2, 0), 30.0);
        const TestPorts ports;
        CurlySpinbar spinbar(u"test"_s);
        spinbar.setRodentMode(CurlySpinbarDevice::Mice);
        // Exact products and quotients rounded step by step, worked out in rational arithmetic.
        QCOMPARE_EQ(spinbar.convertSpeed(0.7, 5, 4), 19.444444444444443);
        QCOMPARE_EQ(CurlySpinbar::convertSpeed(0.7, 4, 5, 0), 0.025199999999999993);
    }
};

QTEST_GUILESS_MAIN(TestCurlySpinbar)
#include "tst_curlyspinbar.moc"
