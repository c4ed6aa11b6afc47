#include "ui/directjumpslider.h"
#include "ui/gridcontrol.h"
#include "ui/manualcalibrationdialog.h"
#include "ui/speedcontrol.h"

#include "core/spinbarrecord.h"
#include "detection/spinbardetection.h"
#include "files.h"
#include "framework/common/widgets/stylehelper.h"
#include "operatorbench.h"
#include "scripts/widgets/speedscriptselectandrunwidget.h"

#include <QElapsedTimer>
#include <QSpinBox>
#include <QTabWidget>

#include <malloc.h>

using namespace Qt::StringLiterals;

namespace {

double meanLightness(const QImage &image)
{
    qint64 sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            sum += qGray(image.pixel(x, y));
    }
    return double(sum) / image.width() / image.height();
}

std::size_t heapBytes()
{
    const struct mallinfo2 heap = mallinfo2();
    return heap.uordblks + heap.hblkhd;
}

} // namespace

/// The whole window with an instrument, in what a laboratory day brings.
class TestOperatorWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        StyleHelper::Instance()->addStyleFile(u":/themes/nt.theme.css"_s);
        StyleHelper::Instance()->addThemeFile(u":/themes/light.css"_s, u"light"_s);
        StyleHelper::Instance()->addThemeFile(u":/themes/dark.css"_s, u"dark"_s);
    }

    void themeChangesInTheOpenWindow()
    {
        OperatorBench bench;
        SpinbarSettings *settings = bench.model->settings();
        StyleHelper::InterlinkTheme(settings, u"ColorTheme"_s);
        settings->setColorTheme(StyleHelper::Light);
        QVERIFY(bench.plugIn("0 8 off\n"));
        const auto picture = [&bench] { return bench.window->grab().toImage(); };
        const QImage light = picture();
        settings->setColorTheme(StyleHelper::Dark);
        const QImage dark = picture();
        // The panel, the header and the graph take part, or the difference would be smaller.
        QVERIFY2(meanLightness(light) > 200 && meanLightness(dark) < 60,
                 qPrintable(u"%1 %2"_s.arg(meanLightness(light)).arg(meanLightness(dark))));
        settings->setColorTheme(StyleHelper::Light);
        QCOMPARE(picture(), light);
    }

    void lossInEveryStateLeavesAWindowThatWorks_data()
    {
        QTest::addColumn<QString>("state");
        for (const char *state : {"idle", "recording", "script", "calibrating", "dialog"})
            QTest::newRow(state) << QString::fromLatin1(state);
    }

    void lossInEveryStateLeavesAWindowThatWorks()
    {
        QFETCH(QString, state);
        OperatorBench bench;
        QVERIFY(writeFile(bench.model->scriptsFolder() + "Constant.xml"_L1,
                          "<SpeedScript><Infinite>true</Infinite><Points>0:9\n10:9</Points></SpeedScript>"));
        QVERIFY(bench.plugIn("1 3 on\n"));
        auto *controller = SpinbarController::instance();
        auto *runner = bench.find<SpeedScriptSelectAndRunWidget>();
        auto *speed = bench.find<SpeedControl>()->findChild<DirectJumpSlider *>();
        auto *grid = bench.find<GridControl>()->findChild<DirectJumpSlider *>();
        ManualCalibrationDialog dialog(bench.model->settings(), controller);
        QString folder;
        if (state == "recording"_L1) {
            speed->setValue(2000);
            grid->setValue(500);
            QVERIFY(bench.waitForCommand(u"rotate=2.000"_s));
            bench.click(u"Record"_s);
            folder = bench.model->currentRecord()->folder();
            QTRY_VERIFY(bench.model->device()->ratDetectors().at(2)->isPresent());
        } else if (state == "script"_L1) {
            runner->reloadList({});
            bench.find<QTabWidget>()->setCurrentWidget(runner);
            bench.click(u"Run script"_s);
            QVERIFY(bench.waitForCommand(u"rotate=1.432"_s)); // 9 radians a second
        } else if (state == "calibrating"_L1) {
            bench.answerNext(u"Начать"_s);
            bench.click(u"Калибровка датчиков"_s);
        } else if (state == "dialog"_L1) {
            dialog.open();
        }

        bench.instrument.reset();
        QVERIFY(bench.waitForConnection(false));
        QTRY_VERIFY(!controller->isEnabled());
        QVERIFY(!bench.model->currentRecord());
        QCOMPARE(speed->value() + grid->value(), 0);
        if (state == "recording"_L1) {
            SpinbarRecord stored(folder, {});
            QVERIFY(stored.load());
            QCOMPARE(stored.rawItems().size(), 1);
        }
        if (state == "dialog"_L1) {
            dialog.findChildren<QSpinBox *>().constFirst()->setValue(21);
            QTest::mouseClick(dialog.findChildren<QPushButton *>().constFirst(), Qt::LeftButton);
            QVERIFY(bench.model->settings()->getCalibrationRats().startsWith("21;"_L1));
        }
        bench.commands.clear();
        QVERIFY(bench.plugIn());
        QVERIFY(state == "script"_L1 || bench.commands.filter(u"rotate="_s).isEmpty());
        // A script goes on where it would be by now; nothing else turns the drum.
        if (state == "script"_L1) {
            QVERIFY(bench.waitForCommand(u"rotate=1.432"_s));
            bench.click(u"Stop script"_s);
            QVERIFY(bench.waitForCommand(u"rotate=0.000"_s));
        }
        bench.click(u"Record"_s);
        QVERIFY(bench.model->currentRecord());
        if (state != "calibrating"_L1)
            return;
        // What was seen counts.
        QTRY_COMPARE_WITH_TIMEOUT(bench.model->settings()->getCalibrationRats().count(u';'), 3, 60'000);
        for (const QDialog *progress : controller->findChildren<QDialog *>())
            QVERIFY(progress->isHidden());
    }

    void floodOfMessagesNeitherFreezesNorGrows()
    {
        constexpr double FloodRate = 200;
        constexpr int Lines = 3000;
        constexpr int TimeoutMs = 60'000;
        constexpr int LongestPauseMs = 500;
        constexpr std::size_t BytesPerLine = 64;
        OperatorBench bench;
        QVERIFY(bench.plugIn("1 2 on\n", true, FloodRate));
        bench.click(u"Record"_s);
        const QString folder = bench.model->currentRecord()->folder();
        int lines = 0;
        connect(bench.model->device(), &CurlySpinbar::newStatus, this, [&lines] { ++lines; });
        QTRY_VERIFY_WITH_TIMEOUT(lines >= Lines, TimeoutMs);
        const std::size_t allowed = heapBytes() + 2 * Lines * BytesPerLine;
        qint64 longestPauseMs = 0;
        QElapsedTimer sinceTurn;
        QTimer turns;
        connect(&turns, &QTimer::timeout, this,
                [&] { longestPauseMs = std::max(longestPauseMs, sinceTurn.restart()); });
        sinceTurn.start();
        turns.start(1);
        QTRY_VERIFY_WITH_TIMEOUT(lines >= 2 * Lines, TimeoutMs);
        turns.stop();
        QVERIFY2(longestPauseMs < LongestPauseMs, qPrintable(QString::number(longestPauseMs)));
        // On a busy machine thousands of messages wait to be read, which is nothing that stays.
        NewSpinbar &link = bench.model->device()->device();
        link.send(u"stop"_s);
        QTRY_COMPARE_WITH_TIMEOUT(link.instrumentClock(), bench.instrument->clockMs(), TimeoutMs);
        QTRY_VERIFY(heapBytes() <= allowed);
        bench.model->stopRecord();
        SpinbarRecord stored(folder, {});
        QVERIFY(stored.load());
        stored.loadStatus(true);
        const auto &samples = stored.counters().samples();
        QVERIFY(samples.size() >= std::size_t(2 * Lines));
        for (std::size_t i = 1; i < samples.size(); ++i)
            QCOMPARE(samples[i].timeMs - samples[i - 1].timeMs, qint64(SpinbarRecord::StatusPeriodMs));
    }
};

QTEST_MAIN(TestOperatorWindow)
#include "tst_operatorwindow.moc"
