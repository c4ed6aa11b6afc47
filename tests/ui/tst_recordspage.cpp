#include "core/spinbarrecord.h"
#include "framework/settings/languagecontext.h"
#include "operatorbench.h"
#include "recordsbench.h"
#include "rows.h"

#include <QClipboard>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QSplitter>

using namespace Qt::StringLiterals;
using Column = RecordsTable::Column;

class TestRecordsPage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { LanguageContext::setLanguage(u"en_US"_s); }

    void whateverLiesInTheFolderIsListed()
    {
        const QByteArray whole =
            R"({"experiment":{"title":"T","comment":"C","items":[)"
            R"({"start":0,"end":2,"rotations":3,"rat":false},{"start":5,"end":9,"rotations":1}]}})";
        const QString longest(255, u'x');
        const QString cyrillic = u"ж"_s.repeated(126) + u" ."_s;
        RecordsBench bench;
        bench.write(u"1/2/3/4/deep/experiment.json"_s, whole);
        bench.write(u"empty/experiment.json"_s, {});
        bench.write(u"broken/experiment.json"_s, whole.chopped(3));
        bench.write(u"hostile/experiment.json"_s,
                    R"({"experiment":{"title":"=1+1","comment":"a\nb;","items":[7]}})");
        bench.write(u"two/experiment.json"_s, whole);
        bench.write(u"two/copy.JSON"_s, whole);
        bench.write(longest + u"/experiment.json"_s, whole);
        bench.write(cyrillic + u"/experiment.json"_s, whole);
        QDir().mkpath(bench.path(u"circle"_s));
        QFile::link(bench.model->recordsFolder(), bench.path(u"circle/back"_s));
        bench.open();
        QCOMPARE(bench.rows(),
                 QStringList({cyrillic + u"|T|C|2"_s, longest + u"|T|C|2"_s, u"two|T|C|2"_s, u"two|T|C|2"_s,
                              u"hostile|=1+1|a\nb;|0"_s, u"empty|||0"_s, u"deep|T|C|2"_s, u"broken|||0"_s}));
        QCOMPARE(bench.shownPage(), 0);
    }

    void captionsAreWholeInANarrowTable()
    {
        RecordsTable table;
        table.resize(200, 200);
        table.show();
        for (int column = 0; column < table.columnCount(); ++column) {
            const QString caption = table.horizontalHeaderItem(column)->text();
            QVERIFY(table.columnWidth(column)
                    > table.horizontalHeader()->fontMetrics().horizontalAdvance(caption));
        }
    }

    void editsGoToTheFile_data()
    {
        const auto row = columns<int, QString>("column", "row");
        row("title", Column::TitleColumn, u"a|=Крыса; \"7\"|C|1"_s);
        row("comment", Column::CommentColumn, u"a|T a|=Крыса; \"7\"|1"_s);
    }

    void editsGoToTheFile()
    {
        QFETCH(int, column);
        RecordsBench bench;
        bench.add(u"a"_s, 1, u"C"_s);
        bench.open();
        QVERIFY(!bench.cell(u"a"_s, Column::CountColumn)->flags().testFlag(Qt::ItemIsEditable));
        QCOMPARE(bench.cell(u"a"_s, column)->toolTip(), bench.json(u"a"_s));
        bench.table->setCurrentItem(bench.cell(u"a"_s, column));
        QTest::keyClick(bench.table, Qt::Key_F2);
        auto *editor = bench.table->findChild<QLineEdit *>();
        QVERIFY(editor);
        editor->setText(u"=Крыса; \"7\""_s);
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_VERIFY(bench.rows().constFirst().contains(u"Крыса"_s));
        bench.open();
        QTEST(bench.rows().constFirst(), "row");
    }

    void anExperimentThatIsGoneIsNotMadeAnew()
    {
        // Removed and renamed by others; name, title and comment typed.
        for (int round = 0; round < 6; ++round) {
            RecordsBench bench;
            bench.add(u"a"_s);
            bench.add(u"b"_s);
            bench.open();
            bench.table->selectRow(1);
            QTableWidgetItem *cell = bench.cell(u"a"_s, round % 3);
            const bool renamed = round >= 3;
            QVERIFY(renamed ? QFile::rename(bench.path(u"a"_s), bench.path(u"z"_s))
                            : QDir(bench.path(u"a"_s)).removeRecursively());
            bench.answerNext(u"OK"_s);
            cell->setText(u"typed"_s);
            QCoreApplication::processEvents();
            QVERIFY(!QFile::exists(bench.path(u"a"_s)));
            bench.click(u"Reload records"_s);
            QCOMPARE(bench.rows(),
                     renamed ? QStringList({u"z|T a||1"_s, u"b|T b||1"_s}) : QStringList{u"b|T b||1"_s});
        }
    }

    void renamingMovesTheFolderOrTellsWhyNot_data()
    {
        const auto row = columns<QString, QString, QString, QString>("typed", "message", "folder", "cell");
        const QString name = u"Крыса № 7"_s;
        const QString longest(255, u'x');
        row("new", u' ' + name + u' ', {}, name, name);
        row("longest", longest, {}, longest, longest);
        row("other case", u" RAT "_s, {}, u"rat"_s, u" RAT "_s);
        row("blank", u"  "_s, u"Experiment title cannot be empty"_s, u"rat"_s, u"rat"_s);
        row("taken", u"MOUSE"_s, u"This title is already used"_s, u"rat"_s, u"rat"_s);
        row("outside", u"../rat2"_s, u"Cannot rename experiment"_s, u"rat"_s, u"rat"_s);
        row("too long", u"ж"_s.repeated(128), u"Cannot rename experiment"_s, u"rat"_s, u"rat"_s);
    }

    void renamingMovesTheFolderOrTellsWhyNot()
    {
        QFETCH(QString, typed);
        QFETCH(QString, folder);
        RecordsBench bench;
        bench.add(u"rat"_s);
        bench.add(u"mouse"_s);
        bench.open();
        bench.table->selectRow(0);
        const auto said = bench.answerNext(u"OK"_s);
        bench.cell(u"rat"_s, 0)->setText(typed);
        QCoreApplication::processEvents();
        QTEST(said->value(1), "message");
        QVERIFY(QFile::exists(bench.json(folder)));
        QTEST(bench.cell(folder, 0)->text(), "cell");
        QCOMPARE(bench.settings()->getLastExperimentPath(), bench.json(folder));
        QVERIFY(bench.cell(folder, 3)->isSelected());
        QCOMPARE(QDir(bench.model->recordsFolder()).count(), 4U);
        QCOMPARE(QDir(bench.data.path()).entryList({u"*rat*"_s}), QStringList());
    }

    void aRunningRecordingStaysWhereItIs()
    {
        OperatorBench bench;
        QVERIFY(bench.plugIn());
        bench.model->startRecord({});
        const QString path = bench.model->currentRecord()->experimentJsonPath();
        bench.click(u"Records"_s);
        auto *page = bench.window->findChild<PageDatabase *>();
        page->findChild<RecordsTable *>()->item(0, 0)->setText(u"other"_s);
        auto said = bench.answerNext(u"OK"_s);
        QCoreApplication::processEvents();
        QCOMPARE(said->value(1), u"Cannot rename experiment"_s);
        said = bench.answerNext(u"Yes"_s);
        page->removeExperiments({path});
        QCOMPARE(said->value(1), u"Remove selected experiment?"_s);
        QVERIFY(QFile::exists(path));
        QCOMPARE(QDir(bench.model->recordsFolder()).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 1);
    }

    void theSelectionDecidesWhatIsShown()
    {
        RecordsBench bench;
        for (const char *name : {"a", "b", "c"})
            bench.add(QString::fromLatin1(name));
        bench.settings()->setLastExperimentPath(bench.json(u"b"_s));
        bench.open();
        QVERIFY(bench.cell(u"b"_s, 3)->isSelected());
        QCOMPARE(bench.shownPage(), 1);
        QCOMPARE(bench.page->findChild<QLabel *>(u"subtext"_s)->text(),
                 QDateTime::fromMSecsSinceEpoch(1700000000000).toString(u"yyyy.MM.dd-hh.mm.ss.zzz"_s));
        QTest::keyClick(bench.table, Qt::Key_Down);
        QCOMPARE(bench.settings()->getLastExperimentPath(), bench.json(u"a"_s));
        QTest::keyClick(bench.table, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"a\tT a\t\t1\n"_s);
        bench.table->clearSelection();
        QCOMPARE(bench.shownPage(), 0);
        bench.cell(u"a"_s, 1)->setSelected(true);
        bench.cell(u"c"_s, 2)->setSelected(true);
        QCOMPARE(bench.shownPage(), 2);
        QCOMPARE(bench.table->selectedItems().size(), 8);
        QCOMPARE(bench.settings()->getLastExperimentPath(), QString());
        QTest::keyClick(bench.table, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(bench.table->selectedItems().size(), 12);
    }

    void twoRowsOfOneExperimentAreOne()
    {
        RecordsBench bench;
        bench.add(u"a"_s);
        bench.write(u"a/copy.json"_s, "{}");
        bench.open();
        bench.table->selectAll();
        QCOMPARE(bench.shownPage(), 1);
        QCOMPARE(bench.table->selectedPaths(), QStringList{bench.json(u"a"_s)});
    }

    void theSortOutlivesThePage()
    {
        RecordsBench bench;
        bench.add(u"a"_s, 9);
        bench.add(u"b"_s, 10);
        bench.settings()->setSortingOrder(Qt::AscendingOrder);
        // There is no such column, and a page that was never opened does not know better.
        bench.settings()->setSortingColumn(9);
        PageDatabase(nullptr).setNeedsReload();
        QCOMPARE(bench.settings()->getSortingColumn(), 9);
        bench.open();
        QCOMPARE(bench.table->sortColumn(), 0);
        QCOMPARE(bench.table->item(0, 0)->text(), u"a"_s);
        // The count counts as text.
        bench.table->sortByColumn(Column::CountColumn, Qt::AscendingOrder);
        bench.click(u"Reload records"_s);
        QCOMPARE(bench.table->item(0, 0)->text(), u"b"_s);
        bench.page.reset();
        SpinbarSettings onDisk(bench.settings()->getFilepath(), nullptr);
        onDisk.reload();
        QCOMPARE(onDisk.getSortingColumn(), int(Column::CountColumn));
        QCOMPARE(onDisk.getSortingOrder(), Qt::AscendingOrder);
    }

    void theSplitterStoresLeftToRight()
    {
        RecordsBench bench;
        bench.settings()->setDatabaseSplitterRatio(1.0);
        bench.open();
        auto *splitter = bench.page->findChild<QSplitter *>();
        QCOMPARE(splitter->sizes().constFirst(), splitter->sizes().constLast());
        splitter->setSizes({400, 800});
        const QList<int> sizes = splitter->sizes();
        emit splitter->splitterMoved(0, 1);
        QCOMPARE(bench.settings()->getDatabaseSplitterRatio(), double(sizes[0]) / sizes[1]);
    }

    void removingAsksAndMovesToTheTrash()
    {
        RecordsBench bench;
        for (const char *name : {"a", "b", "c", "d"})
            bench.add(QString::fromLatin1(name));
        bench.open();
        const auto remove = [&bench](int selected, const QString &answer) {
            bench.table->clearSelection();
            for (int row = 0; row < selected; ++row)
                bench.table->item(row, 0)->setSelected(true);
            const auto said = bench.answerNext(answer);
            bench.page->activateWindow();
            if (!QTest::qWaitForWindowActive(bench.page.get()))
                return u"not active"_s;
            QTest::keyClick(bench.table, Qt::Key_Delete);
            QCoreApplication::processEvents();
            return said->value(1);
        };
        const QStringList all{u"d"_s, u"c"_s, u"b"_s, u"a"_s};
        const auto left = [&bench] {
            QStringList names =
                QDir(bench.model->recordsFolder()).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
            std::reverse(names.begin(), names.end());
            return names.size() == bench.table->rowCount() ? names : QStringList();
        };
        QCOMPARE(remove(1, u"No"_s), u"Remove selected experiment?"_s);
        QCOMPARE(left(), all);
        QCOMPARE(remove(1, u"Yes"_s), u"Remove selected experiment?"_s);
        QCOMPARE(left(), all.sliced(1));
        QCOMPARE(remove(2, u"Yes"_s), u"Remove 2 selected experiments?"_s);
        QCOMPARE(left(), all.sliced(3));
        QCOMPARE(remove(0, u"Yes"_s), QString());
        QCOMPARE(left(), all.sliced(3));
    }

    void theMenuSuitsTheSelection()
    {
        RecordsBench bench;
        bench.add(u"a"_s);
        bench.add(u"b"_s);
        bench.open();
        const auto menuEntries = [&bench] {
            QStringList entries;
            QTimer::singleShot(0, bench.page.get(), [&entries] {
                auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
                if (!menu)
                    return;
                for (const QAction *action : menu->actions())
                    entries += action->text();
                menu->close();
            });
            emit bench.table->customContextMenuRequested({5, 5});
            QCoreApplication::processEvents();
            return entries;
        };
        QCOMPARE(menuEntries(), QStringList());
        bench.table->item(0, 0)->setSelected(true);
        QCOMPARE(menuEntries(), QStringList({u"Show in folder"_s, {}, u"Remove experiment"_s}));
        bench.table->item(1, 0)->setSelected(true);
        QCOMPARE(menuEntries(), QStringList{u"Remove experiments"_s});
    }
};

QTEST_MAIN(TestRecordsPage)
#include "tst_recordspage.moc"
