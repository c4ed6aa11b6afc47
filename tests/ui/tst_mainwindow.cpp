#include "ui/languagequestion.h"
#include "ui/pagedatabase.h"
#include "ui/pagesettings.h"
#include "ui/spinbarcontroller.h"

#include "core/spinbarrecord.h"
#include "detection/spinbardetection.h"
#include "framework/common/widgets/nellipse.h"
#include "framework/settings/languagecontext.h"
#include "operatorbench.h"

#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

const QString DevicePage = u"Устройство"_s;
const QString RecordsPage = u"Записи"_s;
const QString SettingsPage = u"Настройки"_s;

} // namespace

class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void headerOpensThePages()
    {
        OperatorBench bench;
        QCOMPARE(bench.window->minimumSize(), QSize(900, 600));
        QStringList titles;
        for (const QPushButton *button : bench.window->findChildren<QPushButton *>()) {
            if (button->isFlat() && button->isCheckable())
                titles += button->accessibleName();
        }
        QCOMPARE(titles, QStringList({DevicePage, RecordsPage, SettingsPage, u"О программе"_s}));
        QVERIFY(bench.button(DevicePage)->isChecked());
        bench.click(SettingsPage);
        QVERIFY(bench.window->findChild<PageSettings *>()->isVisible());
        for (const QString &title : titles)
            QCOMPARE(bench.button(title)->isChecked(), title == SettingsPage);
        bench.click(SettingsPage);
        QVERIFY(bench.button(SettingsPage)->isChecked());
        // As a screen reader does, there and once more.
        for (int i = 0; i < 2; ++i) {
            bench.button(RecordsPage)->toggle();
            QVERIFY(bench.window->findChild<PageDatabase *>()->isVisible());
            QVERIFY(bench.button(RecordsPage)->isChecked() && !bench.button(SettingsPage)->isChecked());
        }
    }

    void dotsTellOfRecordings()
    {
        OperatorBench bench;
        QVERIFY(bench.plugIn());
        const auto *running = bench.button(DevicePage)->findChild<NEllipse *>();
        const auto *finished = bench.button(RecordsPage)->findChild<NEllipse *>();
        QCOMPARE(bench.window->findChildren<NEllipse *>().size(), 2);
        QVERIFY(running->isHidden() && finished->isHidden());
        bench.model->startRecord({});
        QVERIFY(running->isVisible() && finished->isHidden());
        bench.click(RecordsPage);
        QVERIFY(bench.model->currentRecord());
        bench.model->stopRecord();
        // Also while the page is open; only the button takes it away.
        QVERIFY(running->isHidden() && finished->isVisible());
        QVERIFY(bench.window->findChild<PageDatabase *>()->needsReload());
        bench.click(RecordsPage);
        QVERIFY(finished->isHidden());
    }

    void closingEndsTheRecording()
    {
        OperatorBench bench;
        QVERIFY(bench.plugIn("1 2 on\n"));
        // Only a turning drum makes a run count.
        bench.model->device()->setMotorSpeed(2);
        bench.model->startRecord({});
        QTRY_VERIFY(bench.model->device()->ratDetectors().at(1)->rotations() > 0);
        const QString path = bench.model->currentRecord()->experimentJsonPath();
        QVERIFY(bench.window->close());
        QVERIFY(!bench.model->currentRecord());
        SpinbarRecord stored(QFileInfo(path).path() + '/'_L1, {});
        QVERIFY(stored.load());
        QCOMPARE(stored.rawItems().size(), 1);
        QCOMPARE(stored.rawItems().constFirst().index, 1);
        QCOMPARE(stored.sn(), u"B42403101"_s);
    }

    void languageIsAskedForInBothLanguages()
    {
        LanguageContext::setLanguage(u"en_US"_s);
        const auto question = LanguageQuestion::forLanguage(u"ru_RU"_s);
        QCOMPARE(question.title, u"Language change/Смена языка"_s);
        QVERIFY(question.text.startsWith(
            "To translate the app to the other language a restart is required. \nRestart now?\r\n\r\n"_L1));
        // "OK" is the same in both.
        QCOMPARE(question.buttons, QStringList({u"OK"_s, u"Not now/Не сейчас"_s, u"Cancel/Отмена"_s}));
    }

    void languageChangesByTheAnswer_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<SpinbarSettings::SpinbarLanguage>("kept");
        QTest::newRow("cancel") << u"Cancel/Отмена"_s << SpinbarSettings::en_US;
        QTest::newRow("not now") << u"Not now/Не сейчас"_s << SpinbarSettings::ru_RU;
    }

    void languageChangesByTheAnswer()
    {
        QFETCH(QString, button);
        QFETCH(SpinbarSettings::SpinbarLanguage, kept);
        LanguageContext::setLanguage(u"en_US"_s);
        OperatorBench bench;
        SpinbarSettings *settings = bench.model->settings();
        OperatorBench::answerNext(u"Not now"_s);
        settings->setLanguage(SpinbarSettings::en_US);
        const auto said = OperatorBench::answerNext(button);
        settings->setLanguage(SpinbarSettings::ru_RU);
        QCOMPARE(said->value(0), u"Language change/Смена языка"_s);
        QCOMPARE(settings->getLanguage(), kept);
        SpinbarSettings stored(settings->getFilepath(), nullptr);
        stored.reload();
        QCOMPARE(stored.getLanguage(), kept);
        QCOMPARE(LanguageContext::currentLanguage(),
                 kept == SpinbarSettings::en_US ? u"en_US"_s : u"ru_RU"_s);
    }

    void restartNowStartsTheProgramAgain()
    {
        LanguageContext::setLanguage(u"en_US"_s);
        OperatorBench bench;
        SpinbarSettings *settings = bench.model->settings();
        OperatorBench::answerNext(u"Not now"_s);
        settings->setLanguage(SpinbarSettings::en_US);
        const QString started = QCoreApplication::arguments().constFirst() + ".started"_L1;
        QVERIFY(!QFile::exists(started));
        QTimer::singleShot(0, this, [settings] {
            OperatorBench::answerNext(u"OK"_s);
            settings->setLanguage(SpinbarSettings::ru_RU);
        });
        QCOMPARE(QCoreApplication::exec(), 0);
        QTRY_VERIFY(QFile::exists(started));
        SpinbarSettings stored(settings->getFilepath(), nullptr);
        stored.reload();
        QCOMPARE(stored.getLanguage(), SpinbarSettings::ru_RU);
    }

    void keysReachTheServiceTools_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::addColumn<int>("firmware");
        QTest::addColumn<int>("writer");
        constexpr auto Both = Qt::ControlModifier | Qt::AltModifier;
        QTest::newRow("firmware") << Qt::Key_F2 << Qt::KeyboardModifiers(Both) << 1 << 0;
        QTest::newRow("firmware, Shift") << Qt::Key_F2 << (Both | Qt::ShiftModifier) << 1 << 0;
        QTest::newRow("F2, Control") << Qt::Key_F2 << Qt::KeyboardModifiers(Qt::ControlModifier) << 0 << 0;
        QTest::newRow("writer") << Qt::Key_F3 << (Both | Qt::ShiftModifier) << 0 << 1;
        QTest::newRow("F3, no Shift") << Qt::Key_F3 << Qt::KeyboardModifiers(Both) << 0 << 0;
    }

    void keysReachTheServiceTools()
    {
        QFETCH(Qt::Key, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        OperatorBench bench;
        const QSignalSpy firmware(SpinbarController::instance(), &SpinbarController::firmwareUpdateRequested);
        const QSignalSpy writer(bench.window.get(), &MainWindow::deviceWriterRequested);
        QTest::keyPress(bench.window.get(), key, modifiers);
        QCOMPARE(firmware.size() + writer.size(), 0);
        QTest::keyRelease(bench.window.get(), key, modifiers);
        QTEST(int(firmware.size()), "firmware");
        QTEST(int(writer.size()), "writer");
    }
};

/// The application takes a script for itself, so that its restart can be seen.
int main(int argc, char **argv)
{
    const QTemporaryDir folder;
    QFile script(folder.filePath(u"spinbar"_s));
    if (!script.open(QFile::WriteOnly) || script.write("#!/bin/sh\ntouch \"$0.started\"\n") < 0)
        return 1;
    script.close();
    script.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    QByteArray path = script.fileName().toUtf8();
    char *own[] = {path.data(), nullptr};
    int ownCount = 1;
    const QApplication application(ownCount, own);
    TestMainWindow test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_mainwindow.moc"
