#include "framework/common/widgets/workprogress.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr int FarTooManySteps = 1'000'000'000;

} // namespace

class TestWorkProgress : public QObject
{
    Q_OBJECT

private slots:
    void quickWorkShowsNothing()
    {
        QWidget window;
        WorkProgress progress(u"Export"_s, u"file"_s, 3, &window);
        QVERIFY(progress.step());
        bool done = false;
        progress.runBeside([&done](const WorkStep &step) { done = step() && step(); });
        QVERIFY(done);
        QVERIFY(!window.findChild<QProgressDialog *>()->isVisible());
    }

    void longWorkIsShownAndCanBeEnded_data()
    {
        QTest::addColumn<bool>("beside");
        QTest::newRow("on the main thread") << false;
        QTest::newRow("beside it") << true;
    }

    void longWorkIsShownAndCanBeEnded()
    {
        QFETCH(bool, beside);
        QWidget window;
        WorkProgress progress(u"Export"_s, u"file"_s, FarTooManySteps, &window);
        auto *dialog = window.findChild<QProgressDialog *>();
        bool shown = false;
        QTimer user;
        connect(&user, &QTimer::timeout, dialog, [dialog, &shown] {
            shown = shown || dialog->isVisible();
            if (shown)
                dialog->cancel();
        });
        user.start(0);
        bool ended = false;
        const auto work = [&ended](const WorkStep &step) {
            QElapsedTimer time;
            time.start();
            while (step() && time.elapsed() < 20 * WorkProgress::PatienceMs) {
            }
            ended = !step();
        };
        if (beside)
            progress.runBeside(work);
        else
            work([&progress] { return progress.step(); });
        QVERIFY(shown);
        QVERIFY(ended);
    }
};

QTEST_MAIN(TestWorkProgress)
#include "tst_workprogress.moc"
