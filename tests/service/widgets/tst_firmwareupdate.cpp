#include "app/servicetools.h"

#include "bundlemaker.h"
#include "rows.h"
#include "service/widgets/comupdaterwidget.h"
#include "service/widgets/servicedialog.h"
#include "ui/operatorbench.h"
#include "ui/spinbarcontroller.h"

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

const QString OpenButton = u"Open firmware file"_s;
const QString UpdateButton = u"Update firmware"_s;

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

    QAbstractButton *button(const QString &text) const { return findButton(updater, text); }
    bool isValid() const
    {
        return button(u"Valid firmware"_s)->isChecked() && button(UpdateButton)->isEnabled();
    }

    /// Nothing is chosen with an empty path.
    void open(const QString &path) const
    {
        onNext<QFileDialog>(updater, [path](QFileDialog &dialog) {
            if (path.isEmpty() || dialog.nameFilters() != QStringList(u"Firmware (*.bfw)"_s))
                return dialog.reject();
            dialog.findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(path);
            QMetaObject::invokeMethod(&dialog, "accept");
        });
        QTest::mouseClick(button(OpenButton), Qt::LeftButton);
    }

    void update() const { QTest::mouseClick(button(UpdateButton), Qt::LeftButton); }

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
        const auto row = columns<QByteArray, QString>("behaviour", "said");
        const QString doubt = u"Done!|Attention: the firmware has most likely NOT been written!\n"_s;
        row("success", "succeed", u"Done!|"_s);
        row("failure", "fail", u"There were errors while uploading firmware|"_s);
        row("crash", "crash", doubt + u"The tool crashed"_s);
        row("no program", "no program", doubt + u"The tool could not be started: "_s);
        row("closed at once", {}, {});
        row("no instrument yet", {}, {});
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
        onNext<ServiceDialog>(bench.window.get(), [&](ServiceDialog &dialog) {
            const auto close = qScopeGuard([&dialog] {
                QTest::keyClick(dialog.focusWidget() ? dialog.focusWidget() : &dialog, Qt::Key_Escape);
            });
            QVERIFY(dialog.isEnabled());
            UpdaterDriver driver(dialog.findChild<ComUpdaterWidget *>());
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
        QVERIFY(!driver.button(OpenButton)->isEnabled() && !driver.button(u"COM7"_s)->isEnabled());
        QVERIFY(updater->isUpdating() && driver.said.isEmpty() && workFolders().size() == 1);
        QTRY_VERIFY(!updater->isUpdating());
        QCOMPARE(driver.said.size(), 1);
        QVERIFY(driver.said.constFirst().endsWith("The tool was silent for too long and was stopped"_L1));
        QVERIFY(dialog.close());
        QCOMPARE(workFolders(), QStringList());
    }

    void eachTickedPortHasItsRun()
    {
        SerialPortManager::instance().setProvider([] {
            return QList<PortInfo>{{u"COM1"_s, u"/dev/first"_s, u"One"_s, u"Maker"_s},
                                   {u"COM2"_s, u"/dev/second"_s, u"Bluetooth link"_s, {}},
                                   {u"COM3"_s, u"/dev/third"_s, u"Three"_s, {}}};
        });
        ServiceDialog dialog(newUpdater({{u"COM1"_s, u"2.5"_s}}), nullptr);
        dialog.show();
        UpdaterDriver driver(dialog.findChild<ComUpdaterWidget *>());
        QVERIFY(!driver.button(u"COM2"_s) && driver.button(u"COM1"_s)->isChecked());
        QVERIFY(!driver.button(u"COM3"_s)->isChecked());
        QCOMPARE(driver.button(u"COM1"_s)->toolTip(), u"Maker"_s);
        prepare(driver, "succeed");
        driver.button(u"COM3"_s)->click();
        driver.update();
        QTRY_VERIFY(!driver.updater->isUpdating());
        QCOMPARE(driver.said, QStringList({u"Done!|"_s, u"Done!|"_s}));
        QVERIFY(driver.outputs.at(0).contains("\n-P/dev/first\n"_L1));
        QVERIFY(driver.outputs.at(1).contains("\n-P/dev/third\n"_L1));
        for (const QString &port : {u"COM1"_s, u"COM3"_s})
            driver.button(port)->setChecked(false);
        driver.update();
        QVERIFY(!driver.updater->isUpdating() && driver.said.size() == 2);
        // A bundle is given up as soon as another is asked for.
        driver.open({});
        QVERIFY(!driver.isValid());
        QCOMPARE(workFolders(), QStringList());

        ServiceDialog single(newUpdater({{u"-COM3"_s, u"1"_s}}), nullptr);
        const UpdaterDriver singleDriver(single.findChild<ComUpdaterWidget *>());
        QVERIFY(!singleDriver.button(u"COM1"_s));
        QVERIFY(singleDriver.button(u"COM3"_s)->isChecked() && !singleDriver.button(u"COM3"_s)->isEnabled());
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
        QVERIFY(writeFile(path, BundleMaker::bundle(behaviour)));
        driver.open(path);
        QVERIFY(driver.isValid());
        if (QAbstractButton *port = driver.button(u"COM7"_s))
            port->click();
    }

    void runTool(UpdaterDriver &driver, const QByteArray &behaviour, const QString &port)
    {
        prepare(driver, behaviour);
        driver.update();
        QTRY_VERIFY_WITH_TIMEOUT(!driver.updater->isUpdating(), 60'000);
        QCOMPARE(driver.said.size(), 1);
        QCOMPARE(driver.state().endsWith("Done!"_L1), behaviour == "succeed");
        if (behaviour == "no program")
            return;
        const QString folder = workFolders().value(0);
        QVERIFY(driver.output().startsWith(u"-C%1/avrdude.conf\n-v\n-V\n-patmega2560\n-cwiring\n-P%2\n"
                                           "-b115200\n-D\n-Uflash:w:%1/spinbar.hex:i\n"_s.arg(folder, port)));
    }

    QTemporaryDir m_dir;
};

QTEST_MAIN(TestFirmwareUpdate)
#include "tst_firmwareupdate.moc"
