#include "app/servicetools.h"

#include "rows.h"
#include "ui/operatorbench.h"

#include <QDialog>
#include <QLineEdit>
#include <QScopeGuard>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::milliseconds ShortDelay{100};

} // namespace

class TestServiceTools : public QObject
{
    Q_OBJECT

private slots:
    void linkIsBackAfterTheDeviceWriter_data()
    {
        const auto row = columns<QStringList, bool>("clicks", "unplug");
        row("closed while reading", {u"Read"_s}, false);
        row("port left open and claimed", {u"Flash"_s, u"Flash"_s}, false);
        row("unplugged while reading", {u"Read"_s}, true);
    }

    void linkIsBackAfterTheDeviceWriter()
    {
        QFETCH(QStringList, clicks);
        QFETCH(bool, unplug);
        OperatorBench bench;
        const ServiceTools tools(bench.model.get(), bench.window.get(), ShortDelay);
        QVERIFY(bench.plugIn());
        int opened = 0;
        onNext<QDialog>(bench.window.get(), [&](QDialog &dialog) {
            const auto close = qScopeGuard([&dialog] { dialog.close(); });
            ++opened;
            QVERIFY(!bench.model->isDeviceActive());
            bench.commands.clear();
            dialog.findChild<QLineEdit *>()->setText(u"B42611101"_s);
            for (const QString &text : clicks)
                findButton(&dialog, text)->click();
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
