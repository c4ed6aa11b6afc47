#include "ui/calibrationbutton.h"
#include "ui/manualcalibrationdialog.h"

#include "core/calibrationrun.h"
#include "detection/spinbardetection.h"
#include "operatorbench.h"
#include "rows.h"

#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QSignalSpy>
#include <QSpinBox>

using namespace Qt::StringLiterals;

namespace {

QList<int> thresholds(const QList<SpinbarDetection *> &lanes)
{
    QList<int> values;
    for (const SpinbarDetection *lane : lanes)
        values += lane->threshold();
    return values;
}

} // namespace

class TestCalibration : public QObject
{
    Q_OBJECT

private slots:
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
};

QTEST_MAIN(TestCalibration)
#include "tst_calibration.moc"
