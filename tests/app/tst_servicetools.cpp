#include "app/servicetools.h"

#include "service/widgets/spinbarwriterwidget.h"
#include "ui/operatorbench.h"

#include <QDialog>
#include <QLineEdit>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::milliseconds ShortDelay{100};

/// Does \a act to the dialog that comes up, and closes it.
void whenOpened(QObject *context, const std::function<void(QDialog &)> &act)
{
    auto *poll = new QTimer(context);
    QObject::connect(poll, &QTimer::timeout, context, [poll, act] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        poll->deleteLater();
        act(*dialog);
        dialog->close();
    });
    constexpr int PollMs = 20;
    poll->start(PollMs);
}

void click(const QWidget &dialog, const QString &text)
{
    for (QPushButton *button : dialog.findChildren<QPushButton *>()) {
        if (button->text() == text)
            button->click();
    }
}

} // namespace

class TestServiceTools : public QObject
{
    Q_OBJECT

private slots:
    void linkIsBackAfterTheDeviceWriter_data()
    {
        QTest::addColumn<QStringList>("clicks");
        QTest::addColumn<bool>("unplug");
        QTest::newRow("closed while reading") << QStringList{u"Read"_s} << false;
        QTest::newRow("port left open and claimed") << QStringList{u"Flash"_s, u"Flash"_s} << false;
        QTest::newRow("unplugged while reading") << QStringList{u"Read"_s} << true;
    }

    void linkIsBackAfterTheDeviceWriter()
    {
        QFETCH(QStringList, clicks);
        QFETCH(bool, unplug);
        OperatorBench bench;
        const ServiceTools tools(bench.model.get(), bench.window.get(), ShortDelay);
        QVERIFY(bench.plugIn());
        int opened = 0;
        whenOpened(bench.window.get(), [&](QDialog &dialog) {
            ++opened;
            QVERIFY(!bench.model->isDeviceActive());
            bench.commands.clear();
            dialog.findChild<QLineEdit *>()->setText(u"B42611101"_s);
            for (const QString &text : clicks)
                click(dialog, text);
            QTRY_VERIFY(!bench.commands.isEmpty());
            if (unplug)
                bench.instrument.reset();
        });
        // The second one comes while the first is being opened.
        for (int press = 0; press < 2; ++press)
            QTest::keyRelease(bench.window.get(), Qt::Key_F3,
                              Qt::ControlModifier | Qt::AltModifier | Qt::ShiftModifier);
        QVERIFY(!bench.model->isDeviceActive());
        QTRY_VERIFY(bench.model->isDeviceActive());
        QCOMPARE(opened, 1);
        bench.commands.clear();
        QVERIFY(!unplug || bench.plugIn());
        QVERIFY(bench.waitForConnection(true));
        QVERIFY(QSignalSpy(bench.model->device(), &CurlySpinbar::newStatus).wait());
        QTRY_COMPARE(bench.model->device()->serialNumber(),
                     clicks.contains(u"Flash"_s) ? u"B42611101"_s : u"B42403101"_s);
    }

    void windowThatIsClosedMeanwhileOpensNothing()
    {
        OperatorBench bench;
        const ServiceTools tools(bench.model.get(), bench.window.get(), ShortDelay);
        QTest::keyRelease(bench.window.get(), Qt::Key_F3,
                          Qt::ControlModifier | Qt::AltModifier | Qt::ShiftModifier);
        QVERIFY(!bench.model->isDeviceActive());
        QVERIFY(bench.window->close());
        QTRY_VERIFY(bench.model->isDeviceActive());
    }
};

QTEST_MAIN(TestServiceTools)
#include "tst_servicetools.moc"
