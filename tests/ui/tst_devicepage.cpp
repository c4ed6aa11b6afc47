#include "ui/calibrationbutton.h"
#include "ui/connectionbar.h"
#include "ui/directjumpslider.h"
#include "ui/gridcontrol.h"
#include "ui/manualcalibrationdialog.h"
#include "ui/rodentstatuswidget.h"
#include "ui/rungraph.h"
#include "ui/speedcontrol.h"

#include "core/calibrationrun.h"
#include "core/spinbarrecord.h"
#include "detection/spinbardetection.h"
#include "files.h"
#include "framework/common/widgets/iconwidget.h"
#include "framework/common/widgets/stylehelper.h"
#include "operatorbench.h"
#include "rows.h"
#include "scripts/widgets/speedscriptselectandrunwidget.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTabWidget>
#include <QWheelEvent>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

template <typename T>
QStringList shownTexts(const QWidget *parent)
{
    QStringList texts;
    for (const T *widget : parent->findChildren<T *>()) {
        if constexpr (std::is_same_v<T, IconWidget>)
            texts += widget->isVisible() ? QStringList(widget->toolTip()) : QStringList();
        else
            texts += widget->isVisible() && !widget->text().isEmpty() ? QStringList(widget->text())
                                                                      : QStringList();
    }
    return texts;
}

QList<RodentStatusWidget *> shownLanes(const QWidget *parent)
{
    QList<RodentStatusWidget *> lanes = parent->findChildren<RodentStatusWidget *>();
    lanes.removeIf([](const RodentStatusWidget *lane) { return lane->isHidden(); });
    return lanes;
}

QList<int> thresholds(const QList<SpinbarDetection *> &lanes)
{
    QList<int> values;
    for (const SpinbarDetection *lane : lanes)
        values += lane->threshold();
    return values;
}

} // namespace

class TestDevicePage : public QObject
{
    Q_OBJECT

private slots:
    void linkAndPowerAreShown()
    {
        OperatorBench bench;
        auto *controller = SpinbarController::instance();
        const auto *bar = controller->findChild<ConnectionBar *>();
        const auto *speed = controller->findChild<SpeedControl *>()->findChild<DirectJumpSlider *>();
        QVERIFY(!controller->isEnabled());
        QCOMPARE(shownTexts<IconWidget>(bar), QStringList(u"Спинбар не найден"_s));
        QCOMPARE(shownTexts<QLabel>(bar), QStringList(u"Not connected"_s));
        QVERIFY(shownTexts<QLabel>(controller).contains(u"Device is not connected"_s));
        QVERIFY(bench.plugIn("60 power on\n", false));
        QCOMPARE(shownTexts<QLabel>(bar), QStringList(u"B42403101"_s));
        QCOMPARE(shownTexts<IconWidget>(bar),
                 QStringList(u"Спинбар найден, но силовое питание не подключено"_s));
        QVERIFY(!speed->isEnabled());
        QVERIFY(!shownTexts<QLabel>(controller).contains(u"Device is not connected"_s));
        QTRY_COMPARE(shownTexts<IconWidget>(bar), QStringList(u"Спинбар и силовое питание подключено"_s));
        QVERIFY(speed->isEnabled());
    }

    void speedTravelsThroughTheSlider_data()
    {
        const auto row = columns<CurlySpinbar::OutputSpeedDimension, double, QString, double, double>(
            "unit", "typed", "command", "shown", "maximum");
        // 9.487179487179487 motor rotations a drum rotation, 21.991148575128552 cm a drum rotation; whole
        // thousandths of a motor rotation, and the device's top speed is half a drum rotation a second.
        row("cm/s", CurlySpinbar::CentimetersPerSecond, 5, u"rotate=2.157"_s, 5, 11);
        row("rps", CurlySpinbar::RotationsPerSecond, 0.25, u"rotate=2.371"_s, 0.25, 0.5);
        row("top rpm", CurlySpinbar::RotationsPerMinute, 99, u"rotate=4.743"_s, 30, 30);
    }

    void speedTravelsThroughTheSlider()
    {
        QFETCH(CurlySpinbar::OutputSpeedDimension, unit);
        QFETCH(double, typed);
        QFETCH(QString, command);
        OperatorBench bench;
        QVERIFY(bench.plugIn());
        auto *box = bench.find<SpeedControl>()->findChild<QDoubleSpinBox *>();
        QTRY_VERIFY(box->isEnabled());
        const auto *off = bench.button(u"Выключить вращение"_s);
        QVERIFY(off->isHidden());
        bench.model->settings()->setRotationDimension(unit);
        QTEST(box->maximum(), "maximum");
        box->setValue(typed);
        QVERIFY2(bench.waitForCommand(command), qPrintable(bench.commands.join(u' ')));
        QTEST(box->value(), "shown");
        QVERIFY(off->isVisible());
        bench.click(u"Выключить вращение"_s);
        QVERIFY(bench.waitForCommand(u"rotate=0.000"_s));
        QCOMPARE(box->value(), 0.0);
        QVERIFY(off->isHidden());
    }

    void scriptRunsUntilTheTabChanges()
    {
        OperatorBench bench;
        QVERIFY(writeFile(bench.model->scriptsFolder() + "Level.xml"_L1,
                          "<SpeedScript><DurationSeconds>60</DurationSeconds>"
                          "<Points>0.000:6.00\r\n60.000:6.00</Points></SpeedScript>"));
        QVERIFY(bench.plugIn());
        bench.find<SpeedScriptSelectAndRunWidget>()->reloadList({});
        auto *tabs = bench.find<QTabWidget>();
        auto *slider = bench.find<SpeedControl>()->findChild<DirectJumpSlider *>();
        slider->setValue(1000);
        QVERIFY(bench.waitForCommand(u"rotate=1.000"_s));
        tabs->setCurrentIndex(1);
        QVERIFY(bench.waitForCommand(u"rotate=0.000"_s));
        QCOMPARE(slider->value(), 0);
        bench.click(u"Run script"_s);
        // 6 / 2 pi: the script's number counts as radians a second.
        QVERIFY2(bench.waitForCommand(u"rotate=0.955"_s), qPrintable(bench.commands.join(u' ')));
        tabs->setCurrentIndex(0);
        QVERIFY(bench.waitForCommand(u"rotate=0.000"_s));
    }

    void gridSettlesOnTenths()
    {
        OperatorBench bench;
        QVERIFY(bench.plugIn());
        const auto *control = bench.find<GridControl>();
        auto *slider = control->findChild<DirectJumpSlider *>();
        auto *box = control->findChild<QDoubleSpinBox *>();
        slider->setValue(1234);
        QCOMPARE(slider->value(), 1200);
        QCOMPARE(box->value(), 1.2);
        QVERIFY(bench.waitForCommand(u"grid=1.2"_s));
        box->setValue(15.0);
        QCOMPARE(slider->value(), 15000);
        QVERIFY(bench.waitForCommand(u"grid=15.0"_s));
        bench.click(u"Выключить электросетку"_s);
        QVERIFY(bench.waitForCommand(u"grid=0.0"_s));
        QVERIFY(bench.button(u"Выключить электросетку"_s)->isHidden());
    }

    void rodentsChangeLanesAndSpeed()
    {
        OperatorBench bench;
        QVERIFY(bench.plugIn("1 6 on\n"));
        auto *controller = SpinbarController::instance();
        auto *speedBox = controller->findChild<SpeedControl *>()->findChild<QDoubleSpinBox *>();
        QCOMPARE(shownLanes(controller).size(), 4);
        speedBox->setValue(7.0);
        QVERIFY(bench.waitForCommand(u"rotate=3.019"_s));
        bench.commands.clear();
        controller->findChild<QComboBox *>()->setCurrentIndex(1);
        QVERIFY(bench.waitForCommand(u"irmode=m"_s));
        // The drum turns on; the smaller one runs 4/7 of the way.
        QVERIFY(bench.waitForCommand(u"rotate=3.019"_s));
        QCOMPARE(speedBox->value(), 4.0);
        QCOMPARE(bench.model->settings()->getRodentMode(), CurlySpinbarDevice::Mice);
        QCOMPARE(shownLanes(controller).size(), 7);
        RodentStatusWidget *lane = shownLanes(controller).at(5);
        QCOMPARE(lane->laneIndex(), 5);
        QTRY_COMPARE(shownTexts<QLabel>(lane).size(), 2);
        bench.model->settings()->setShowIR(true);
        QVERIFY(shownTexts<QLabel>(lane).constFirst().endsWith("/34"_L1));
    }

    void recordingShowsItsTimeAndBars()
    {
        OperatorBench bench;
        QVERIFY(bench.plugIn("1 1 on\n3 4 on\n40 1 off\n"));
        auto *record = bench.button(u"Record"_s);
        auto *stop = bench.button(u"Stop"_s);
        QVERIFY(record->isVisible() && stop->isHidden());
        QTest::mouseClick(record, Qt::LeftButton);
        QVERIFY(record->isHidden() && stop->isVisible());
        QVERIFY(stop->hasFocus());
        QCOMPARE(stop->text(), u"00:00"_s);
        QTRY_VERIFY(stop->text() > u"00:00"_s && stop->text() < u"00:10"_s);
        SpinbarRecord *running = bench.model->currentRecord();
        QTRY_COMPARE(running->rawItems().size(), 1);
        const RunGraph graph = RunGraph::of(*running, bench.model->device()->detectors());
        QCOMPARE(std::fmod(graph.spanSeconds, 5.0), 0.0);
        QVERIFY(graph.spanSeconds >= running->durationSeconds());
        QVERIFY(graph.spanSeconds < running->durationSeconds() + 5);
        QCOMPARE(graph.laneCount, 4);
        QCOMPARE(graph.bars.size(), 2);
        QCOMPARE(graph.bars.at(0).index, 0);
        QCOMPARE(graph.bars.at(1).index, 3);
        QCOMPARE(graph.bars.at(1).end, qint64(running->durationSeconds() * 1000));
        QVERIFY(graph.bars.at(1).start >= 0 && graph.bars.at(1).start < 10000);
        QTest::mouseClick(stop, Qt::LeftButton);
        QVERIFY(!bench.model->currentRecord());
        QVERIFY(record->isVisible() && stop->isHidden());
    }

    void laneTellsTimeAndDistance()
    {
        OperatorBench bench;
        SpinbarDetection detection(2, true);
        RodentStatusWidget lane(&detection, nullptr);
        lane.setInfraRedVisible(false);
        lane.show();
        detection.update(40, 1000, 200);
        QTRY_VERIFY(!lane.findChild<QLabel *>()->text().isEmpty());
        QCOMPARE(shownTexts<QLabel>(&lane), QStringList());
        // Samples that find the animal, then the last one 65 s after it came.
        while (!detection.isPresent())
            detection.update(10, 1000, detection.lastClock() + 200);
        // 47436 thousandths of a motor rotation are 5.0000 drum rotations of 0.219911 m.
        for (const auto &[unit, distance] : {std::pair{CurlySpinbar::CentimetersPerSecond, u"110.0 cm"_s},
                                             {CurlySpinbar::MetersPerSecond, u"1.10 m"_s},
                                             {CurlySpinbar::KilometersPerHour, u"1.10 m"_s},
                                             {CurlySpinbar::RotationsPerMinute, u"5.00 rot."_s}}) {
            bench.model->settings()->setRotationDimension(unit);
            detection.update(10, 1000 + 47436, detection.startTime() + 65000);
            QTRY_COMPARE(shownTexts<QLabel>(&lane), QStringList({u"01:05"_s, distance}));
        }
        lane.setInfraRedVisible(true);
        QCOMPARE(shownTexts<QLabel>(&lane).constFirst(), u"10/34"_s);
    }

    void sliderJumpsToThePlaceClicked()
    {
        DirectJumpSlider slider(nullptr);
        slider.setRange(0, 1000);
        slider.resize(200, 30);
        slider.show();
        QSignalSpy jumps(&slider, &DirectJumpSlider::sliderJump);
        QSignalSpy right(&slider, &DirectJumpSlider::rightButtonPressed);
        QTest::mouseClick(&slider, Qt::LeftButton, {}, {50, 15});
        QCOMPARE(slider.value(), 250);
        QCOMPARE(jumps.value(0).value(0).toInt(), 250);
        slider.setInvertedAppearance(true);
        QTest::mousePress(&slider, Qt::LeftButton, {}, {50, 15});
        QCOMPARE(slider.value(), 750);
        QTest::mousePress(&slider, Qt::RightButton, {}, {50, 15});
        QTest::mousePress(&slider, Qt::RightButton, {}, {180, 15});
        QCOMPARE(right.size(), 1);
        QWheelEvent wheel({50, 15}, {50, 15}, {}, {0, 120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&slider, &wheel);
        QVERIFY(wheel.isAccepted());
        QCOMPARE(slider.value(), 750);
        slider.setWheelIgnored(true);
        QApplication::sendEvent(&slider, &wheel);
        QVERIFY(!wheel.isAccepted());
    }

    void runKeepsTheLowestReadings_data()
    {
        const auto row = columns<QList<QList<int>>, QString>("readings", "thresholds");
        row("nothing came", {}, u"49;49;49;49"_s);
        row("lowest", {{30, 49, 50, 60}, {28, 48, 51, 6}, {29, 49, 50, 9}}, u"27;47;49;5"_s);
        row("noise", {{5, 0, -1, -40}, {40, 6, 5, 31}}, u"39;5;49;30"_s);
        row("other drum", {{9, 9, 9, 9, 9, 9, 9}, {}, {20, 20, 20}}, u"49;49;49;49"_s);
    }

    void runKeepsTheLowestReadings()
    {
        QFETCH(QList<QList<int>>, readings);
        CalibrationRun run(4);
        for (const QList<int> &values : readings)
            run.collect(values);
        QTEST(run.thresholds(), "thresholds");
    }

    void wizardTellsWhatToDo()
    {
        OperatorBench bench;
        QVERIFY(bench.plugIn({}, false));
        bench.model->device()->setRodentMode(CurlySpinbarDevice::Mice);
        const auto said = bench.answerNext(u"Отмена"_s);
        bench.click(u"Калибровка датчиков"_s);
        QCOMPARE(*said, QStringList({u"Калибровка"_s,
                                     u"1. Включите силовое питание\n2. Поместите барабан для мышей\n"
                                     "3. Не помещайте грызунов на барабан\n"
                                     "4. Нажмите \"Начать\" и дождитесь окончания калибровки"_s}));
        QVERIFY(!bench.commands.contains(u"rotate=4.744"_s));
    }

    void wizardTurnsTheDrumAndStoresThresholds()
    {
        OperatorBench bench;
        QVERIFY(bench.plugIn());
        auto *button = bench.window->findChild<CalibrationButton *>();
        QVERIFY(!button->icon().isNull());
        QList<int> lowest(4, 50);
        connect(bench.model->device(), &CurlySpinbar::ratsIR, this, [&lowest](const QList<int> &values) {
            for (int lane = 0; lane < 4; ++lane)
                lowest[lane] = std::min(lowest.at(lane), values.at(lane));
        });
        bench.answerNext(u"Начать"_s);
        bench.click(u"Калибровка датчиков"_s);
        QVERIFY(bench.waitForCommand(u"rotate=4.744"_s));
        QSignalSpy stored(bench.model->settings(), &SpinbarSettings::changedCalibrationRats);
        QVERIFY(stored.wait(60'000));
        QVERIFY(bench.waitForCommand(u"rotate=0.000"_s));
        QList<int> values = thresholds(bench.model->device()->ratDetectors());
        QCOMPARE(bench.model->settings()->getCalibrationMice(), QString());
        for (int lane = 0; lane < 4; ++lane)
            QVERIFY(values.at(lane) >= 5 && values.at(lane) <= 49 && values.at(lane) >= lowest.at(lane) - 1);
        QVERIFY(values != QList<int>(4, 49));
        QVERIFY(button->icon().isNull());
        for (const QDialog *dialog : bench.window->findChildren<QDialog *>())
            QVERIFY(dialog->isHidden());
    }

    void settingsReachTheLanes()
    {
        OperatorBench bench;
        SpinbarSettings *settings = bench.model->settings();
        CurlySpinbar *device = bench.model->device();
        const auto *button = bench.window->findChild<CalibrationButton *>();
        settings->setCalibrationRats(u"11;12;13;14"_s);
        QCOMPARE(thresholds(device->ratDetectors()), QList<int>({11, 12, 13, 14}));
        QVERIFY(button->icon().isNull());
        // One too many: the lanes keep what they have, and the icon warns.
        settings->setCalibrationRats(u"1;2;3;4;5"_s);
        QCOMPARE(thresholds(device->ratDetectors()), QList<int>({11, 12, 13, 14}));
        QVERIFY(!button->icon().isNull());
        settings->setCalibrationMice(u"21;22;23;24;25;26;27"_s);
        QVERIFY(thresholds(device->mouseDetectors()) != QList<int>({21, 22, 23, 24, 25, 26, 27}));
        device->setRodentMode(CurlySpinbarDevice::Mice);
        QCOMPARE(thresholds(device->mouseDetectors()), QList<int>({21, 22, 23, 24, 25, 26, 27}));
        QVERIFY(button->icon().isNull());
    }

    void valuesCanBeTyped()
    {
        const QTemporaryDir folder;
        SpinbarSettings settings(folder.filePath(u"Settings.xml"_s), nullptr);
        settings.setCalibrationRats(u"5;;many;77;9;10;11"_s);
        settings.setCalibrationMice(u"40"_s);
        ManualCalibrationDialog dialog(&settings, nullptr);
        dialog.show();
        const QList<QSpinBox *> boxes = dialog.findChildren<QSpinBox *>();
        QList<int> values;
        for (const QSpinBox *box : boxes)
            values += box->value();
        QCOMPARE(values, QList<int>({5, 0, 49, 9, 40, 30, 30, 30, 30, 30, 30}));
        // The lanes of both drums stand below each other.
        for (int lane = 0; lane < 4; ++lane)
            QVERIFY(std::abs(boxes.at(lane)->x() - boxes.at(4 + lane)->x()) <= 2);
        boxes.at(1)->setValue(8);
        QTest::mouseClick(dialog.findChildren<QPushButton *>().at(1), Qt::LeftButton);
        QCOMPARE(settings.getCalibrationMice(), u"40"_s);
        dialog.show();
        QTest::mouseClick(dialog.findChildren<QPushButton *>().at(0), Qt::LeftButton);
        QCOMPARE(settings.getCalibrationRats(), u"5;8;49;9"_s);
        QCOMPARE(settings.getCalibrationMice(), u"40;30;30;30;30;30;30"_s);
        QVERIFY(dialog.isHidden());
    }

    void everythingHasItsPlaceInTheSmallestWindow()
    {
        StyleHelper::Instance()->addStyleFile(u":/themes/nt.theme.css"_s);
        StyleHelper::Instance()->addThemeFile(u":/themes/light.css"_s, u"light"_s);
        StyleHelper::Instance()->selectTheme(u"light"_s);
        OperatorBench bench;
        bench.window->resize(bench.window->minimumSize());
        QVERIFY(bench.plugIn());
        const auto *control = bench.find<SpeedControl>();
        control->findChild<QTabWidget *>()->setCurrentIndex(1);
        QTest::qWait(0);
        QCOMPARE(bench.window->size(), QSize(900, 600));
        QVERIFY(control->height() >= control->minimumSizeHint().height());
        const QWidget *record = bench.button(u"Record"_s);
        QVERIFY(control->geometry().bottom() < record->geometry().top());
        QVERIFY(record->height() >= 40);
    }

    void everyControlHasAName()
    {
        OperatorBench bench;
        for (const QWidget *widget : bench.window->findChildren<QWidget *>()) {
            const auto *button = qobject_cast<const QAbstractButton *>(widget);
            const bool isControl = button || qobject_cast<const QAbstractSlider *>(widget)
                                   || qobject_cast<const QAbstractSpinBox *>(widget)
                                   || qobject_cast<const QComboBox *>(widget);
            if (!isControl || widget->focusPolicy() == Qt::NoFocus
                || qobject_cast<const QScrollBar *>(widget))
                continue;
            const QString name = widget->accessibleName() + (button ? button->text() : QString());
            QVERIFY2(!name.isEmpty(), widget->metaObject()->className());
        }
    }
};

QTEST_MAIN(TestDevicePage)
#include "tst_devicepage.moc"
