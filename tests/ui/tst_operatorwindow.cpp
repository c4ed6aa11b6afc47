#include "ui/calibrationbutton.h"
#include "ui/manualcalibrationdialog.h"
#include "ui/speedcontrol.h"
#include "ui/spinbarcontroller.h"

#include "core/spinbarrecord.h"
#include "framework/common/widgets/stylehelper.h"
#include "operatorbench.h"
#include "scripts/widgets/speedscriptselectandrunwidget.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
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
        QTRY_VERIFY(SpinbarController::instance()->isEnabled());
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
        QFile script(bench.model->scriptsFolder() + "Constant.xml"_L1);
        QVERIFY(script.open(QFile::WriteOnly));
        script.write("<SpeedScript><Infinite>true</Infinite><Points>0:9\n10:9</Points></SpeedScript>");
        script.close();
        QVERIFY(bench.plugIn("1 3 on\n"));
        auto *controller = SpinbarController::instance();
        QTRY_VERIFY(controller->isEnabled());
        auto *tabs = controller->findChild<QTabWidget *>();
        auto *runner = controller->findChild<SpeedScriptSelectAndRunWidget *>();
        ManualCalibrationDialog dialog(bench.model->settings(), controller);
        if (state == "recording"_L1) {
            bench.click(u"Record"_s);
        } else if (state == "script"_L1) {
            runner->reloadList({});
            tabs->setCurrentWidget(runner);
            bench.click(u"Run script"_s);
            QVERIFY(bench.waitForCommand(u"rotate=1.432"_s)); // 9 radians a second
        } else if (state == "calibrating"_L1) {
            OperatorBench::answerNext(u"Начать"_s);
            bench.click(u"Калибровка датчиков"_s);
        } else if (state == "dialog"_L1) {
            dialog.open();
        }

        bench.instrument.reset();
        QVERIFY(bench.waitForConnection(false));
        QTRY_VERIFY(!controller->isEnabled());
        QVERIFY(!bench.model->currentRecord());
        if (state == "dialog"_L1) {
            dialog.findChildren<QSpinBox *>().constFirst()->setValue(21);
            QTest::mouseClick(dialog.findChildren<QPushButton *>().constFirst(), Qt::LeftButton);
            QVERIFY(bench.model->settings()->getCalibrationRats().startsWith("21;"_L1));
        }
        bench.commands.clear();
        QVERIFY(bench.plugIn());
        QTRY_VERIFY(controller->isEnabled());
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
        constexpr int LongestPauseMs = 500;
        constexpr std::size_t BytesPerLine = 64;
        OperatorBench bench;
        QVERIFY(bench.plugIn("1 2 on\n", true, FloodRate));
        QTRY_VERIFY(SpinbarController::instance()->isEnabled());
        bench.click(u"Record"_s);
        const QString folder = bench.model->currentRecord()->folder();
        QVERIFY(waitForLines(bench, Lines));
        const std::size_t before = heapBytes();
        std::size_t lines = 0;
        qint64 longestPauseMs = 0;
        QElapsedTimer sinceTurn;
        QTimer turns;
        connect(bench.model->device(), &CurlySpinbar::newStatus, &turns, [&lines] { ++lines; });
        connect(&turns, &QTimer::timeout, this,
                [&] { longestPauseMs = std::max(longestPauseMs, sinceTurn.restart()); });
        sinceTurn.start();
        turns.start(1);
        QVERIFY(waitForLines(bench, Lines));
        turns.stop();
        QVERIFY2(longestPauseMs < LongestPauseMs, qPrintable(QString::number(longestPauseMs)));
        // On a busy machine thousands of messages wait to be read, which is nothing that stays.
        NewSpinbar &link = bench.model->device()->device();
        link.send(u"stop"_s);
        QTRY_COMPARE_WITH_TIMEOUT(link.instrumentClock(), bench.instrument->clockMs(), 60'000);
        QTRY_VERIFY(heapBytes() <= before + lines * BytesPerLine);
        bench.model->stopRecord();
        SpinbarRecord stored(folder, {});
        QVERIFY(stored.load());
        stored.loadStatus(true);
        const auto &samples = stored.counters().samples();
        QVERIFY(samples.size() >= std::size_t(2 * Lines));
        for (std::size_t i = 1; i < samples.size(); ++i)
            QCOMPARE(samples[i].timeMs - samples[i - 1].timeMs, qint64(SpinbarRecord::StatusPeriodMs));
    }

private:
    /// By an event loop that never sleeps beside what comes.
    static bool waitForLines(OperatorBench &bench, int count)
    {
        constexpr int TimeoutMs = 60'000;
        QEventLoop loop;
        int lines = 0;
        connect(bench.model->device(), &CurlySpinbar::newStatus, &loop, [&] {
            if (++lines == count)
                loop.quit();
        });
        QTimer::singleShot(TimeoutMs, &loop, &QEventLoop::quit);
        loop.exec();
        return lines >= count;
    }
};

QTEST_MAIN(TestOperatorWindow)
#include "tst_operatorwindow.moc"
