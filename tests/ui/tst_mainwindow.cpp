#include "ui/pagedatabase.h"
#include "ui/pagesettings.h"

#include "framework/common/widgets/nellipse.h"
#include "framework/settings/languagecontext.h"
#include "operatorbench.h"
#include "rows.h"

#include <QFile>
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
        const QStringList titles{DevicePage, RecordsPage, SettingsPage, u"О программе"_s};
        QVERIFY(bench.button(DevicePage)->isChecked());
        for (int i = 0; i < 2; ++i) {
            bench.click(SettingsPage);
            QVERIFY(bench.find<PageSettings>()->isVisible());
            for (const QString &title : titles)
                QCOMPARE(bench.button(title)->isChecked(), title == SettingsPage);
        }
        // As a screen reader does, there and once more.
        for (int i = 0; i < 2; ++i) {
            bench.button(RecordsPage)->toggle();
            QVERIFY(bench.find<PageDatabase>()->isVisible());
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

    void languageChangesByTheAnswer_data()
    {
        const auto row = columns<QString, SpinbarSettings::SpinbarLanguage>("button", "kept");
        row("cancel", u"Cancel/Отмена"_s, SpinbarSettings::en_US);
        row("not now", u"Not now/Не сейчас"_s, SpinbarSettings::ru_RU);
    }

    void languageChangesByTheAnswer()
    {
        QFETCH(QString, button);
        QFETCH(SpinbarSettings::SpinbarLanguage, kept);
        LanguageContext::setLanguage(u"en_US"_s);
        OperatorBench bench;
        SpinbarSettings *settings = bench.model->settings();
        bench.answerNext(u"Not now"_s);
        settings->setLanguage(SpinbarSettings::en_US);
        const auto said = bench.answerNext(button);
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
        bench.answerNext(u"Not now"_s);
        settings->setLanguage(SpinbarSettings::en_US);
        const QString started = QCoreApplication::arguments().constFirst() + ".started"_L1;
        QVERIFY(!QFile::exists(started));
        QTimer::singleShot(0, this, [&bench, settings] {
            bench.answerNext(u"OK"_s);
            settings->setLanguage(SpinbarSettings::ru_RU);
        });
        QCOMPARE(QCoreApplication::exec(), 0);
        QTRY_VERIFY(QFile::exists(started));
        SpinbarSettings stored(settings->getFilepath(), nullptr);
        stored.reload();
        QCOMPARE(stored.getLanguage(), SpinbarSettings::ru_RU);
    }

    void keysReachTheServiceTools()
    {
        OperatorBench bench;
        QString asked;
        connect(SpinbarController::instance(), &SpinbarController::firmwareUpdateRequested, this,
                [&asked] { asked += u"firmware "_s; });
        connect(bench.window.get(), &MainWindow::deviceWriterRequested, this,
                [&asked] { asked += u"writer "_s; });
        const auto press = [&](Qt::Key key, Qt::KeyboardModifiers modifiers) {
            asked.clear();
            QTest::keyPress(bench.window.get(), key, modifiers);
            asked += u"released "_s;
            QTest::keyRelease(bench.window.get(), key, modifiers);
            return asked;
        };
        constexpr auto Both = Qt::ControlModifier | Qt::AltModifier;
        QCOMPARE(press(Qt::Key_F2, Both), u"released firmware "_s);
        QCOMPARE(press(Qt::Key_F2, Both | Qt::ShiftModifier), u"released firmware "_s);
        QCOMPARE(press(Qt::Key_F2, Qt::ControlModifier), u"released "_s);
        QCOMPARE(press(Qt::Key_F3, Both | Qt::ShiftModifier), u"released writer "_s);
        QCOMPARE(press(Qt::Key_F3, Both), u"released "_s);
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
