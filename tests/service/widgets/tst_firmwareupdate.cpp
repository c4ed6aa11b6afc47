#include "app/servicetools.h"

#include "bundlemaker.h"
#include "service/widgets/comupdaterwidget.h"
#include "service/widgets/servicedialog.h"
#include "ui/operatorbench.h"
#include "ui/spinbarcontroller.h"

#include <QCheckBox>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

namespace {

/// The open updater as the operator has it before them. Presses the button of each message box and keeps what
/// the box said.
class UpdaterDriver
{
public:
    explicit UpdaterDriver(ComUpdaterWidget *shown)
        : updater(shown)
    {
        QObject::connect(&m_boxes, &QTimer::timeout, shown, [this] { answerBox(); });
        m_boxes.start(10ms);
    }
    Q_DISABLE_COPY_MOVE(UpdaterDriver)

    QPushButton *button(const QString &text) const
    {
        for (QPushButton *button : updater->findChildren<QPushButton *>()) {
            if (button->text() == text)
                return button;
        }
        return nullptr;
    }
    QPushButton *openButton() const { return button(u"Open firmware file"_s); }
    QPushButton *updateButton() const { return button(u"Update firmware"_s); }

    QCheckBox *box(const QString &text) const
    {
        for (QCheckBox *box : updater->findChildren<QCheckBox *>()) {
            if (box->text() == text)
                return box;
        }
        return nullptr;
    }
    bool isValid() const { return box(u"Valid firmware"_s)->isChecked() && updateButton()->isEnabled(); }

    /// Nothing is chosen with an empty path.
    void open(const QString &path) const
    {
        QTimer::singleShot(0, updater, [path] {
            auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            if (path.isEmpty() || dialog->nameFilters() != QStringList(u"Firmware (*.bfw)"_s))
                return dialog->reject();
            dialog->findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(path);
            QMetaObject::invokeMethod(dialog, "accept");
        });
        QTest::mouseClick(openButton(), Qt::LeftButton);
    }

    void update() const { QTest::mouseClick(updateButton(), Qt::LeftButton); }

    /// What stands right above the output.
    QString state() const
    {
        const QLayout *layout = updater->layout();
        return qobject_cast<QLabel *>(layout->itemAt(layout->count() - 2)->widget())->text();
    }

    QString output() const { return updater->findChild<QPlainTextEdit *>()->toPlainText(); }

    ComUpdaterWidget *updater;
    QStringList said;
    /// What stood in the window behind each box.
    QStringList outputs;

private:
    void answerBox()
    {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box || box->property("answered").toBool())
            return;
        box->setProperty("answered", true);
        outputs += output();
        said += (box->text() + u'|' + box->informativeText());
        box->button(QMessageBox::Ok)->click();
    }

    QTimer m_boxes;
};

QStringList workFolders()
{
    return QDir().entryList({u"firmware-*"_s}, QDir::Dirs);
}

} // namespace

class TestFirmwareUpdate : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // The dialog of a desktop can't be driven from here.
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QVERIFY(QDir::setCurrent(m_dir.path()));
    }

    void linkIsUpAgainHoweverItEnds_data()
    {
        QTest::addColumn<QByteArray>("behaviour");
        QTest::addColumn<QString>("said");
        const QString done = u"Done!|"_s;
        const QString doubt = done + u"Attention: the firmware has most likely NOT been written!\n"_s;
        QTest::newRow("success") << QByteArray("succeed") << done;
        QTest::newRow("failure") << QByteArray("fail") << u"There were errors while uploading firmware|"_s;
        QTest::newRow("exit code") << QByteArray("code") << doubt + u"The tool ended with the code 3"_s;
        QTest::newRow("crash") << QByteArray("crash") << doubt + u"The tool crashed"_s;
        QTest::newRow("silence") << QByteArray("silent")
                                 << doubt + u"The tool was silent for too long and was stopped"_s;
        QTest::newRow("flood") << QByteArray("flood") << done;
        QTest::newRow("no program") << QByteArray("no program")
                                    << doubt + u"The tool could not be started: "_s;
        QTest::newRow("closed at once") << QByteArray() << QString();
        QTest::newRow("no instrument yet") << QByteArray() << QString();
    }

    void linkIsUpAgainHoweverItEnds()
    {
        QFETCH(QByteArray, behaviour);
        QFETCH(QString, said);
        OperatorBench bench;
        const bool pluggedIn = QTest::currentDataTag() != QByteArray("no instrument yet");
        QVERIFY(!pluggedIn || bench.plugIn());
        const ServiceTools tools(bench.model.get(), bench.window.get());
        bool driven = false;
        QTimer::singleShot(0, this, [&] {
            auto *dialog = qobject_cast<ServiceDialog *>(QApplication::activeModalWidget());
            QVERIFY(dialog && dialog->isEnabled());
            const auto close = qScopeGuard([=] {
                QTest::keyClick(dialog->focusWidget() ? dialog->focusWidget() : dialog, Qt::Key_Escape);
            });
            UpdaterDriver driver(dialog->findChild<ComUpdaterWidget *>());
            QVERIFY(!bench.model->isDeviceActive());
            if (!behaviour.isEmpty())
                runTool(driver, behaviour, bench.instrument->path());
            QCOMPARE(driver.said.value(0).left(said.size()), said);
            driven = true;
        });
        SpinbarController::instance()->updateFirmware();
        QVERIFY(driven);
        QCOMPARE(workFolders(), QStringList());
        QVERIFY(bench.model->isDeviceActive());
        QVERIFY(pluggedIn ? bench.waitForConnection(true) : bench.plugIn());
    }

    void windowIsAliveAndStaysWhileTheToolRuns()
    {
        ComUpdaterWidget *updater = nullptr;
        OperatorBench bench;
        QVERIFY(bench.plugIn());
        ServiceDialog dialog(updater = newUpdater({}), nullptr);
        dialog.show();
        UpdaterDriver driver(updater);
        prepare(driver, "silent");
        updater->setSilence(600ms);
        driver.update();
        QVERIFY(updater->isUpdating());
        QTRY_VERIFY(driver.output().contains("-cwiring"_L1));
        QVERIFY(!dialog.close());
        dialog.reject();
        QTest::keyClick(updater, Qt::Key_Escape);
        QVERIFY(dialog.isVisible() && updater->isVisible());
        driver.update();
        updater->done(0);
        QVERIFY(!driver.openButton()->isEnabled() && !driver.box(u"COM7"_s)->isEnabled());
        QVERIFY(updater->isUpdating() && driver.said.isEmpty() && workFolders().size() == 1);
        QTRY_VERIFY(!updater->isUpdating());
        QCOMPARE(driver.said.size(), 1);
        QVERIFY(dialog.close());
        QCOMPARE(workFolders(), QStringList());
    }

    void eachTickedPortHasItsRun()
    {
        SerialPortManager::instance().setProvider([] {
            return QList<PortInfo>{{u"COM1"_s, u"/dev/first"_s, u"One"_s, u"Maker"_s},
                                   {u"COM2"_s, u"/dev/second"_s, u"Bluetooth link"_s, {}},
                                   {u"COM3"_s, u"/dev/third"_s, u"<b>Three"_s, {}}};
        });
        ServiceDialog dialog(newUpdater({{u"COM1"_s, u"2.5"_s}}), nullptr);
        dialog.show();
        UpdaterDriver driver(dialog.findChild<ComUpdaterWidget *>());
        QVERIFY(!driver.box(u"COM2"_s) && driver.box(u"COM1"_s)->isChecked());
        QVERIFY(!driver.box(u"COM3"_s)->isChecked());
        QCOMPARE(driver.box(u"COM1"_s)->toolTip(), u"Maker"_s);
        QStringList labels;
        for (const QLabel *label : dialog.findChild<PortRows *>()->findChildren<QLabel *>())
            labels += label->text();
        QCOMPARE(labels, QStringList({u"<span style=\"color:#3C0\">v2.5</span>&nbsp; "
                                      "<span style=\"color:#999\">One</span>"_s,
                                      u"<span style=\"color:#999\">&lt;b&gt;Three</span>"_s}));
        prepare(driver, "succeed");
        driver.box(u"COM3"_s)->click();
        driver.update();
        QTRY_VERIFY(!driver.updater->isUpdating());
        QCOMPARE(driver.said, QStringList({u"Done!|"_s, u"Done!|"_s}));
        QVERIFY(driver.outputs.at(0).contains("\n-P/dev/first\n"_L1));
        QVERIFY(driver.outputs.at(1).contains("\n-P/dev/third\n"_L1));
        for (const QString &port : {u"COM1"_s, u"COM3"_s})
            driver.box(port)->setChecked(false);
        driver.update();
        QVERIFY(!driver.updater->isUpdating() && driver.said.size() == 2);
        // A bundle is given up as soon as another is asked for.
        driver.open({});
        QVERIFY(!driver.isValid());
        QCOMPARE(workFolders(), QStringList());

        ServiceDialog single(newUpdater({{u"-COM3"_s, u"1"_s}}), nullptr);
        const UpdaterDriver singleDriver(single.findChild<ComUpdaterWidget *>());
        QVERIFY(!singleDriver.box(u"COM1"_s));
        QVERIFY(singleDriver.box(u"COM3"_s)->isChecked() && !singleDriver.box(u"COM3"_s)->isEnabled());
        SerialPortManager::instance().setProvider({});
    }

private:
    static ComUpdaterWidget *newUpdater(const ComUpdaterWidget::KnownPorts &known)
    {
        return new ComUpdaterWidget(FirmwareTarget::Kind::Avr, u"bfw"_s, u"self-avrdude.exe"_s, known,
                                    nullptr);
    }

    /// Opens a bundle whose tool behaves so, and ticks the port if there is one.
    void prepare(const UpdaterDriver &driver, const QByteArray &behaviour)
    {
        QVERIFY(!driver.isValid());
        const QString path = m_dir.filePath(u"bundle.bfw"_s);
        QVERIFY(BundleMaker::write(path, BundleMaker::bundle(behaviour)));
        driver.open(path);
        QVERIFY(driver.isValid());
        if (QCheckBox *port = driver.box(u"COM7"_s))
            port->click();
    }

    void runTool(UpdaterDriver &driver, const QByteArray &behaviour, const QString &port)
    {
        prepare(driver, behaviour);
        if (behaviour == "silent")
            driver.updater->setSilence(300ms);
        driver.update();
        QTRY_VERIFY_WITH_TIMEOUT(!driver.updater->isUpdating(), 60'000);
        QCOMPARE(driver.said.size(), 1);
        const bool done = behaviour == "succeed" || behaviour == "flood";
        QCOMPARE(driver.state().endsWith("Done!"_L1), done);
        if (behaviour == "flood" || behaviour == "no program")
            return;
        const QString folder = workFolders().value(0);
        QVERIFY(driver.output().startsWith(u"-C%1/avrdude.conf\n-v\n-V\n-patmega2560\n-cwiring\n-P%2\n"
                                           "-b115200\n-D\n-Uflash:w:%1/spinbar.hex:i\n"_s.arg(folder, port)));
    }

    QTemporaryDir m_dir;
};

QTEST_MAIN(TestFirmwareUpdate)
#include "tst_firmwareupdate.moc"
