#include "core/spinbarrecord.h"
#include "framework/settings/languagecontext.h"
#include "operatorbench.h"
#include "recordsbench.h"

#include <QClipboard>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QRegularExpression>
#include <QSplitter>

using namespace Qt::StringLiterals;
using Files = QMap<QString, QByteArray>;
using Column = RecordsTable::Column;

class TestRecordsPage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { LanguageContext::setLanguage(u"en_US"_s); }

    void whateverLiesInTheFolderIsListed_data()
    {
        QTest::addColumn<Files>("files");
        QTest::addColumn<QStringList>("rows");
        const QByteArray whole =
            R"({"experiment":{"title":"T","comment":"C","items":[)"
            R"({"start":0,"end":2,"rotations":3,"rat":false},{"start":5,"end":9,"rotations":1}]}})";
        const QString cyrillic = u"ж"_s.repeated(126) + u" ."_s;
        QTest::newRow("nothing") << Files() << QStringList();
        QTest::newRow("whole") << Files{{u"a/experiment.json"_s, whole}} << QStringList{u"a|T|C|2"_s};
        QTest::newRow("no json") << Files{{u"a/status.log"_s, "S;1"}} << QStringList();
        QTest::newRow("other json") << Files{{u"a/other.json"_s, whole}} << QStringList{u"a|||0"_s};
        QTest::newRow("two json") << Files{{u"a/experiment.json"_s, whole}, {u"a/copy.JSON"_s, whole}}
                                  << QStringList{u"a|T|C|2"_s, u"a|T|C|2"_s};
        QTest::newRow("empty and broken")
            << Files{{u"a/experiment.json"_s, {}}, {u"b/experiment.json"_s, whole.chopped(3)}}
            << QStringList{u"b|||0"_s, u"a|||0"_s};
        const QByteArray dropped = R"({"experiment":{"items":[{"start":2,"end":2,"rotations":1},7]}})";
        QTest::newRow("rows dropped") << Files{{u"a/experiment.json"_s, dropped}} << QStringList{u"a|||0"_s};
        QTest::newRow("deep") << Files{{u"1/2/3/4/a/experiment.json"_s, whole}} << QStringList{u"a|T|C|2"_s};
        QTest::newRow("longest names")
            << Files{{QString(255, u'x') + u"/experiment.json"_s, whole},
                     {cyrillic + u"/experiment.json"_s, whole}}
            << QStringList{cyrillic + u"|T|C|2"_s, QString(255, u'x') + u"|T|C|2"_s};
        const QByteArray hostile = R"({"experiment":{"title":"=1+1","comment":"a\nb;"}})";
        QTest::newRow("hostile texts")
            << Files{{u"a/experiment.json"_s, hostile}} << QStringList{u"a|=1+1|a\nb;|0"_s};
    }

    void whateverLiesInTheFolderIsListed()
    {
        QFETCH(Files, files);
        RecordsBench bench;
        for (auto file = files.cbegin(); file != files.cend(); ++file)
            bench.write(file.key(), file.value());
        QDir().mkpath(bench.path(u"circle"_s));
        QFile::link(bench.model->recordsFolder(), bench.path(u"circle/back"_s));
        bench.open();
        QTEST(bench.rows(), "rows");
        QCOMPARE(bench.shownPage(), 0);
        QVERIFY(bench.page->findChild<QStackedWidget *>()->currentWidget()->isVisible());
    }

    void cellsTellOfTheirExperiment()
    {
        RecordsBench bench;
        bench.add(u"a"_s, 3, u"C"_s);
        bench.open();
        const QStringList captions{u"Date"_s, u"Title"_s, u"Comment"_s, u"N"_s};
        const QStringList keys{u"Title"_s, u"Rodent"_s, u"Comment"_s, {}};
        for (int column = 0; column < 4; ++column) {
            const QTableWidgetItem *cell = bench.cell(u"a"_s, column);
            const bool count = column == Column::CountColumn;
            QCOMPARE(bench.table->horizontalHeaderItem(column)->text(), captions[column]);
            QCOMPARE(bench.table->horizontalHeader()->sectionResizeMode(column),
                     column == 0 || count ? QHeaderView::ResizeToContents : QHeaderView::Stretch);
            QCOMPARE(cell->data(257).toString(), keys[column]);
            QCOMPARE(cell->toolTip(), bench.json(u"a"_s));
            QCOMPARE(cell->flags().testFlag(Qt::ItemIsEditable), !count);
            QCOMPARE(cell->textAlignment(), int(Qt::AlignVCenter | (count ? Qt::AlignRight : Qt::AlignLeft)));
            QCOMPARE(cell->icon().isNull(), column != 0);
        }
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
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("row");
        QTest::newRow("title") << int(Column::TitleColumn) << u"a|=Крыса; \"7\"|C|1"_s;
        QTest::newRow("comment") << int(Column::CommentColumn) << u"a|T a|=Крыса; \"7\"|1"_s;
    }

    void editsGoToTheFile()
    {
        QFETCH(int, column);
        RecordsBench bench;
        bench.add(u"a"_s, 1, u"C"_s);
        bench.open();
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

    void anExperimentThatIsGoneIsNotMadeAnew_data()
    {
        QTest::addColumn<bool>("renamed");
        QTest::addColumn<int>("column");
        for (const bool renamed : {false, true}) {
            for (int column = 0; column < 3; ++column)
                QTest::addRow("%s, column %d", renamed ? "renamed" : "removed", column) << renamed << column;
        }
    }

    void anExperimentThatIsGoneIsNotMadeAnew()
    {
        QFETCH(bool, renamed);
        QFETCH(int, column);
        RecordsBench bench;
        bench.add(u"a"_s);
        bench.add(u"b"_s);
        bench.open();
        bench.table->selectRow(1);
        QTableWidgetItem *cell = bench.cell(u"a"_s, column);
        if (renamed)
            QVERIFY(QFile::rename(bench.path(u"a"_s), bench.path(u"z"_s)));
        else
            QVERIFY(QDir(bench.path(u"a"_s)).removeRecursively());
        bench.answerNext(u"OK"_s);
        cell->setText(u"typed"_s);
        QCoreApplication::processEvents();
        QVERIFY(!QFile::exists(bench.path(u"a"_s)));
        bench.click(u"Reload records"_s);
        QCOMPARE(bench.rows(),
                 renamed ? QStringList({u"z|T a||1"_s, u"b|T b||1"_s}) : QStringList{u"b|T b||1"_s});
    }

    void renamingMovesTheFolderOrTellsWhyNot_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("cell");
        const auto moved = [](const QString &name) {
            QTest::addRow("%s", qUtf8Printable(name))
                << name << QString() << name.trimmed() << name.trimmed();
        };
        moved(u" Крыса № 7 "_s);
        moved(QString(255, u'x'));
        QTest::newRow("other case") << u" RAT "_s << QString() << u"rat"_s << u" RAT "_s;
        QTest::newRow("blank") << u"  "_s << u"Experiment title cannot be empty"_s << u"rat"_s << u"rat"_s;
        QTest::newRow("taken") << u"MOUSE"_s << u"This title is already used"_s << u"rat"_s << u"rat"_s;
        for (const char *name :
             {".", "..", "../rat2", "a/b", "a\\b", "/tmp/rat2", "a:b", "a?", "NUL", "com1.x", "a."})
            QTest::newRow(name) << QString::fromLatin1(name) << u"Cannot rename experiment"_s << u"rat"_s
                                << u"rat"_s;
        QTest::newRow("too long") << u"ж"_s.repeated(128) << u"Cannot rename experiment"_s << u"rat"_s
                                  << u"rat"_s;
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
        QTEST(*said, "message");
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
        auto said = OperatorBench::answerNext(u"OK"_s);
        QCoreApplication::processEvents();
        QCOMPARE(said->value(1), u"Cannot rename experiment"_s);
        said = OperatorBench::answerNext(u"Yes"_s);
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

    void theSortOutlivesThePage_data()
    {
        QTest::addColumn<int>("stored");
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("first");
        QTest::newRow("name") << 0 << 0 << u"a"_s;
        QTest::newRow("count, as text") << 3 << 3 << u"b"_s;
        QTest::newRow("no such column") << 9 << 0 << u"a"_s;
        QTest::newRow("negative") << -1 << 0 << u"a"_s;
    }

    void theSortOutlivesThePage()
    {
        QFETCH(int, stored);
        QFETCH(int, column);
        RecordsBench bench;
        bench.add(u"a"_s, 9);
        bench.add(u"b"_s, 10);
        bench.settings()->setSortingColumn(stored);
        bench.settings()->setSortingOrder(Qt::AscendingOrder);
        // A page that was never opened does not know better.
        PageDatabase(nullptr).setNeedsReload();
        QCOMPARE(bench.settings()->getSortingColumn(), stored);
        bench.open();
        QTEST(bench.table->item(0, 0)->text(), "first");
        QCOMPARE(bench.table->sortColumn(), column);
        bench.table->sortByColumn(Column::TitleColumn, Qt::DescendingOrder);
        bench.click(u"Reload records"_s);
        QCOMPARE(bench.table->item(0, 0)->text(), u"b"_s);
        bench.page.reset();
        SpinbarSettings onDisk(bench.settings()->getFilepath(), nullptr);
        onDisk.reload();
        QCOMPARE(onDisk.getSortingColumn(), int(Column::TitleColumn));
        QCOMPARE(onDisk.getSortingOrder(), Qt::DescendingOrder);
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

    void removingAsksAndMovesToTheTrash_data()
    {
        QTest::addColumn<int>("selected");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("question");
        QTest::addColumn<QStringList>("left");
        QTest::newRow("none") << 0 << u"Yes"_s << QString() << QStringList({u"c"_s, u"b"_s, u"a"_s});
        QTest::newRow("no") << 1 << u"No"_s << u"Remove selected experiment?"_s
                            << QStringList({u"c"_s, u"b"_s, u"a"_s});
        QTest::newRow("one") << 1 << u"Yes"_s << u"Remove selected experiment?"_s
                             << QStringList({u"b"_s, u"a"_s});
        QTest::newRow("two") << 2 << u"Yes"_s << u"Remove 2 selected experiments?"_s << QStringList{u"a"_s};
    }

    void removingAsksAndMovesToTheTrash()
    {
        QFETCH(int, selected);
        QFETCH(QString, answer);
        RecordsBench bench;
        for (const char *name : {"a", "b", "c"})
            bench.add(QString::fromLatin1(name));
        bench.open();
        for (int row = 0; row < selected; ++row)
            bench.table->item(row, 0)->setSelected(true);
        const auto said = bench.answerNext(answer);
        QTest::keyClick(bench.table, Qt::Key_Delete);
        QCoreApplication::processEvents();
        QTEST(*said, "question");
        QStringList names;
        for (const QString &row : bench.rows())
            names += row.section(u'|', 0, 0);
        QTEST(names, "left");
        QCOMPARE(QDir(bench.model->recordsFolder()).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(),
                 names.size());
    }

    void withoutATrashTheExperimentStays_data()
    {
        QTest::addColumn<QString>("file");
        QTest::newRow("no folder for it") << u"data"_s;
        QTest::newRow("cannot be made") << u"data/Trash"_s;
    }

    void withoutATrashTheExperimentStays()
    {
        QFETCH(QString, file);
        RecordsBench bench;
        bench.write(u"../"_s + file, {});
        bench.add(u"a"_s);
        bench.open();
        bench.table->selectRow(0);
        const QByteArray before = qgetenv("XDG_DATA_HOME");
        qputenv("XDG_DATA_HOME", QFile::encodeName(bench.data.filePath(u"data"_s)));
        bench.answerNext(u"Yes"_s);
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(u"Cannot move to the trash: .*there is no trash"_s));
        bench.page->removeExperiments({bench.json(u"a"_s)});
        qputenv("XDG_DATA_HOME", before);
        QVERIFY(QFile::exists(bench.json(u"a"_s)));
        QVERIFY(bench.cell(u"a"_s, 0)->isSelected());
    }

    void theMenuSuitsTheSelection_data()
    {
        QTest::addColumn<int>("selected");
        QTest::addColumn<QStringList>("entries");
        QTest::newRow("one") << 1 << QStringList({u"Show in folder"_s, {}, u"Remove experiment"_s});
        QTest::newRow("two") << 2 << QStringList{u"Remove experiments"_s};
        QTest::newRow("none") << 0 << QStringList();
    }

    void theMenuSuitsTheSelection()
    {
        QFETCH(int, selected);
        RecordsBench bench;
        bench.add(u"a"_s);
        bench.add(u"b"_s);
        bench.open();
        for (int row = 0; row < selected; ++row)
            bench.table->item(row, 0)->setSelected(true);
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
        QTEST(entries, "entries");
    }
};

QTEST_MAIN(TestRecordsPage)
#include "tst_recordspage.moc"
