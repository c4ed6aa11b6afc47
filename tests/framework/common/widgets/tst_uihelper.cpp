#include "framework/common/texthelper.h"
#include "framework/common/widgets/tablecopy.h"
#include "framework/common/widgets/uihelper.h"
#include "framework/common/widgets/workprogress.h"

#include <QClipboard>
#include <QDeadlineTimer>
#include <QDesktopServices>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QTimer>

#include <memory>

using namespace Qt::StringLiterals;

class TestUIHelper : public QObject
{
    Q_OBJECT

public slots:
    void open(const QUrl &url) { m_opened = url; }

private slots:
    void labelsCarryTheirSheet()
    {
        const auto sheet = [](int size, bool bold, const QString &family) {
            return std::unique_ptr<QLabel>(UIHelper::GenerateLabel(u"x"_s, size, Qt::red, bold, family))
                ->styleSheet();
        };
        QCOMPARE(sheet(12, false, u"Mono"_s),
                 u"QLabel { font-size: 12px; color: #ff0000; font-family: Mono; }"_s);
        QCOMPARE(sheet(12, true, {}), u"QLabel { font-size: 12px; color: #ff0000; font-weight: bold}"_s);
        QCOMPARE(sheet(0, false, {}), u"QLabel { color: #ff0000; }"_s);
    }

    void layoutsAreClearedAndReplaced()
    {
        QWidget host;
        auto *outer = new QVBoxLayout(&host);
        const QPointer<QHBoxLayout> inner = new QHBoxLayout;
        const QList<QPointer<QWidget>> widgets{new QLabel(u"x"_s), new QLabel(u"y"_s)};
        outer->addLayout(inner);
        outer->addSpacing(3);
        outer->addWidget(widgets.at(0));
        inner->addWidget(widgets.at(1));
        UIHelper::ClearLayout(outer, false);
        QVERIFY(outer->isEmpty() && !inner);
        QVERIFY(host.findChildren<QWidget *>().isEmpty());
        QTRY_VERIFY(!widgets.at(0) && !widgets.at(1));
        QCOMPARE(host.layout(), outer);

        auto *child = new QLabel(u"new"_s);
        UIHelper::InsertToWidget(&host, child, 7, Qt::AlignRight);
        const auto *grid = qobject_cast<QGridLayout *>(host.layout());
        QVERIFY(grid);
        QCOMPARE(grid->contentsMargins(), QMargins(7, 7, 7, 7));
        QCOMPARE(grid->itemAtPosition(0, 0)->widget(), child);
        QCOMPARE(grid->itemAtPosition(0, 0)->alignment(), Qt::AlignRight);
    }

    void linksOpenTheirAddress()
    {
        QDesktopServices::setUrlHandler(u"spinbar-test"_s, this, "open");
        const std::unique_ptr<QPushButton> button(
            UIHelper::GenerateLinkButton(u"spinbar-test:x"_s, {}, {}, u"linkButton"_s));
        QCOMPARE(button->text(), u"spinbar-test:x"_s);
        button->click();
        QCOMPARE(m_opened, QUrl(u"spinbar-test:x"_s));
        QDesktopServices::unsetUrlHandler(u"spinbar-test"_s);
    }

    void theFirstPathThatExistsIsFound()
    {
        QCOMPARE(UIHelper::findValidResource({u":/none"_s, u"/"_s, u":/"_s}), u"/"_s);
    }

    void cellsAreSpreadsheetText()
    {
        const auto copied = [](const QString &cell) {
            QTableWidget table(1, 2);
            table.setItem(0, 0, new QTableWidgetItem(cell));
            table.selectRow(0);
            return TableCopy::text(table);
        };
        QCOMPARE(copied(u"a; \"b\""_s), u"a; \"b\"\t\n"_s);
        QCOMPARE(copied(u"\"b\" c"_s), u"\"\"\"b\"\" c\"\t\n"_s);
        QCOMPARE(copied(u"a\tb"_s), u"\"a\tb\"\t\n"_s);
        QCOMPARE(copied(u"a\n\"b\""_s), u"\"a\n\"\"b\"\"\"\t\n"_s);
        QCOMPARE(copied({}), u"\t\n"_s);
    }

    void wholeRowsAreCopiedAsTheyAreSeen()
    {
        QTableWidget table(4, 3);
        TableCopy::install(&table);
        for (int cell = 0; cell < 12; ++cell)
            table.setItem(cell / 3, cell % 3, new QTableWidgetItem(QString::number(cell)));
        table.item(1, 0)->setData(TableCopy::NumberRole, 1.0 / 3);
        table.hideColumn(1);
        table.horizontalHeader()->swapSections(0, 2);
        table.show();
        table.setFocus();
        QVERIFY(QTest::qWaitForWindowActive(&table));
        QGuiApplication::clipboard()->setText(u"before"_s);
        QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"before"_s);
        table.item(3, 2)->setSelected(true);
        table.item(1, 0)->setSelected(true);
        QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);
        const QString third = u"0.3333333333333333"_s.replace(u"."_s, TextHelper::numDecimalSeparator());
        QCOMPARE(QGuiApplication::clipboard()->text(), "5\t"_L1 + third + "\n11\t9\n"_L1);
    }

    void quickWorkShowsNothing()
    {
        QWidget window;
        WorkProgress progress(u"Export"_s, u"file"_s, 3, &window);
        bool done = progress.step();
        progress.runBeside([&done](const WorkStep &step) { done = done && step() && step(); });
        QVERIFY(done);
        QVERIFY(!window.findChild<QProgressDialog *>()->isVisible());
    }

    void longWorkIsShownAndCanBeEnded()
    {
        for (const bool beside : {false, true}) {
            QWidget window;
            WorkProgress progress(u"Export"_s, u"file"_s, 1'000'000'000, &window);
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
                const QDeadlineTimer tooLate(20 * WorkProgress::PatienceMs);
                while (step() && !tooLate.hasExpired()) {
                }
                ended = !step();
            };
            if (beside)
                progress.runBeside(work);
            else
                work([&progress] { return progress.step(); });
            QVERIFY(shown && ended);
        }
    }

private:
    QUrl m_opened;
};

QTEST_MAIN(TestUIHelper)
#include "tst_uihelper.moc"
