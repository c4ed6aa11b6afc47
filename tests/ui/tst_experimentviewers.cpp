#include "ui/experimenttable.h"
#include "ui/experimentviewer.h"
#include "ui/multiexperimentviewer.h"

#include "core/experimentfolder.h"
#include "core/spinbarrecord.h"
#include "framework/common/widgets/stylehelper.h"
#include "framework/common/widgets/tablecopy.h"
#include "rows.h"
#include "scripts/widgets/speedscriptviewer.h"

#include <QHeaderView>
#include <QTableWidget>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

QStringList texts(const QTableWidget &table, int row)
{
    QStringList list;
    for (int column = 0; column < table.columnCount(); ++column)
        list += table.item(row, column) ? table.item(row, column)->text() : u"-"_s;
    return list;
}

int greenPixels(QWidget &widget)
{
    constexpr int Distinct = 60;
    const QImage picture = widget.grab().toImage();
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor color = picture.pixelColor(x, y);
            count += color.green() > std::max(color.red(), color.blue()) + Distinct ? 1 : 0;
        }
    }
    return count;
}

} // namespace

class TestExperimentViewers : public QObject
{
    Q_OBJECT

private slots:
    void cellIsShownByItsKind_data()
    {
        const auto row = columns<QString, int, QVariant, QString, Qt::AlignmentFlag, bool, QString>(
            "firstHeader", "column", "cell", "text", "side", "icon", "toolTip");
        const QString date = u"Date"_s;
        const QString deviation = u"Standard deviation"_s;
        row("rounded number", date, 0, 2.0 / 3, u"0.667"_s, Qt::AlignRight, false, {});
        row("not a number", date, 1, std::nan(""), u"0.000"_s, Qt::AlignRight, false, {});
        row("whole number", date, 1, 12, u"12"_s, Qt::AlignRight, false, {});
        row("text", date, 0, u"7"_s, u"7"_s, Qt::AlignLeft, false, {});
        row("text under a number sign", u"№"_s, 0, u"7"_s, u"7"_s, Qt::AlignRight, false, {});
        row("text beside it", u"#"_s, 1, u"7"_s, u"7"_s, Qt::AlignLeft, false, {});
        row("number sign", date, 1, u"#"_s, u"#"_s, Qt::AlignRight, false, {});
        row("mean", date, 1, u"M"_s, u"M"_s, Qt::AlignRight, false, u"Average value"_s);
        row("dispersion", date, 0, u"D"_s, u"D"_s, Qt::AlignRight, false, u"Dispersion"_s);
        row("deviation", date, 1, u"CKO"_s, u"CKO"_s, Qt::AlignRight, false, deviation);
        row("deviation in English", date, 1, u"σ"_s, u"σ"_s, Qt::AlignRight, false, deviation);
        row("mouse", date, 0, u"{M} 00:01-00:02 [7]"_s, u"00:01-00:02 [7]"_s, Qt::AlignLeft, true, {});
        row("rat", date, 1, u"{R} x {R}"_s, u"x {R}"_s, Qt::AlignLeft, true, {});
        row("other brace", date, 1, u"{X} x"_s, u"{X} x"_s, Qt::AlignLeft, false, {});
    }

    void cellIsShownByItsKind()
    {
        QFETCH(QString, firstHeader);
        QFETCH(int, column);
        QFETCH(QVariant, cell);
        QTableWidget table;
        QList<QVariant> row{u"a"_s, u"b"_s};
        row[column] = cell;
        fillTable(&table, {{u"#"_s, u"b"_s, u"c"_s}, {}, {1, 2, 3}, {4, 5, 6}});
        fillTable(&table, {{firstHeader, u"b"_s}, row, {}});
        QCOMPARE(table.rowCount(), 2);
        QCOMPARE(table.columnCount(), 2);
        QCOMPARE(table.horizontalHeaderItem(0)->text(), firstHeader);
        const QTableWidgetItem *item = table.item(0, column);
        QTEST(item->text(), "text");
        QTEST(Qt::AlignmentFlag(item->textAlignment() & Qt::AlignHorizontal_Mask), "side");
        QTEST(!item->icon().isNull(), "icon");
        QTEST(item->toolTip(), "toolTip");
        QCOMPARE(item->foreground().style() != Qt::NoBrush, !item->toolTip().isEmpty());
        QVERIFY(item->textAlignment() & Qt::AlignVCenter);
        QVERIFY(!(item->flags() & Qt::ItemIsEditable));
        QVERIFY(!table.item(1, 0));
    }

    void labelsFollowTheTheme()
    {
        ExperimentTable table(u"Results"_s);
        table.setRows({{u"a"_s, u"b"_s}, {}, {u"M"_s, u"x"_s}});
        StyleHelper::Instance()->setCustomValue(u"--n-sub-text"_s, u"#123456"_s);
        emit StyleHelper::Instance()->changed();
        QCOMPARE(table.item(1, 0)->foreground().color(), QColor(0x12, 0x34, 0x56));
        QCOMPARE(table.item(1, 1)->foreground().style(), Qt::NoBrush);
    }

    void numbersAreNeverCut()
    {
        ExperimentTable table(u"Results"_s);
        table.setRows({{u"#"_s, u"Interval"_s, u"N"_s, u"N"_s},
                       {u"1"_s, u"{R} 00:00:01-00:00:59 [1]"_s, 123456.789, 1.5}});
        table.show();
        for (const int width : {900, 330, 200}) {
            table.resize(width, 300);
            for (int column = 0; column < table.columnCount(); ++column) {
                const QString text = table.item(0, column)->text();
                QVERIFY(table.columnWidth(column) > table.fontMetrics().horizontalAdvance(text));
            }
            // Wide columns are even, narrow ones fit and too narrow ones can be scrolled.
            QCOMPARE(table.horizontalHeader()->sectionResizeMode(1) == QHeaderView::Stretch, width == 900);
            QCOMPARE(table.horizontalHeader()->length() > table.viewport()->width(), width == 200);
        }
    }

    void aLongNameLeavesRoom()
    {
        ExperimentTable table(u"Summary"_s);
        table.resize(500, 300);
        table.setRows({{u"Date"_s, u"Time, s"_s}, {"{R} "_L1 + QString(200, u'x'), 12.5}});
        table.show();
        QVERIFY(table.horizontalHeader()->length() <= table.viewport()->width());
    }

    void oneExperimentIsATableAndAGraph()
    {
        const ExperimentFolder folder;
        // 40 s at a steady speed, on the instrument's clock from a minute on.
        folder.write("status.log", statusLog(201, 60'000, 600));
        auto record = std::make_unique<SpinbarRecord>(folder.path(), QDateTime());
        record->addItem(61'000, 71'000, 1500, 6, false, {});
        record->addItem(62'000, 82'000, 3000, 0, false, {});
        ExperimentViewer viewer;
        viewer.resize(600, 600);
        viewer.setRecord(record.get());
        QCOMPARE(viewer.record(), record.get());
        const auto *table = viewer.findChild<QTableWidget *>();
        QCOMPARE(table->rowCount(), 2 + 1 + 3);
        // The motor makes 3 turns a second; the drum of the mice has 0.04 m of diameter.
        QCOMPARE(texts(*table, 0), QStringList({u"1"_s, u"00:01-00:11 [7]"_s, u"10.000"_s, u"0.188"_s,
                                                u"1.500"_s, u"0.377"_s, u"0.377"_s}));
        QCOMPARE(texts(*table, 2), QStringList(7, u"-"_s));
        QCOMPARE(texts(*table, 3).first(3), QStringList({u""_s, u"M"_s, u"15.000"_s}));

        table->item(0, 0)->setSelected(true);
        QVERIFY(TableCopy::text(*table).startsWith("1\t00:01-00:11 [7]\t10\t0.1884955592153876"_L1));

        auto *graph = viewer.findChild<SpeedScriptViewer *>();
        QVERIFY2(graph->accessibleDescription().startsWith(u"0–40 s"),
                 qPrintable(graph->accessibleDescription()));
        QVERIFY(greenPixels(*graph) > 100);
        constexpr int RowsOfMice = 7;
        constexpr int RowHeight = 20;
        QVERIFY(graph->height() - graph->plotRectangle().bottom() > RowsOfMice * RowHeight);

        viewer.setRecord(nullptr);
        QCOMPARE(table->rowCount(), 0);
        QCOMPARE(greenPixels(*graph), 0);
        QVERIFY(!record->isStatusLoaded());
        viewer.setRecord(record.get());
        record.reset();
        QVERIFY(!viewer.record());
    }

    void summaryNeedsTwoExperiments()
    {
        const ExperimentFolder first;
        const ExperimentFolder second;
        first.write("status.log", statusLog(201, 60'000, 600));
        SpinbarRecord rats(first.path(), {});
        rats.addItem(60'000, 70'000, 1500, 0, true, {});
        rats.setTitle(u"Group A"_s);
        SpinbarRecord none(second.path(), {});
        MultiExperimentViewer viewer;
        const auto *table = viewer.findChild<QTableWidget *>();
        viewer.setRecords({&rats});
        QCOMPARE(viewer.records().size(), 1);
        QCOMPARE(table->rowCount(), 0);
        viewer.setRecords({&rats, &none});
        QCOMPARE(table->rowCount(), 2 + 1 + 3);
        QCOMPARE(texts(*table, 0).first(5), QStringList({u"Rat 7"_s, u"Group A"_s, {}, u"1"_s, u"10.000"_s}));
        QCOMPARE(texts(*table, 3).mid(3, 2), QStringList({u"M"_s, u"5.000"_s}));
        QVERIFY(!rats.isStatusLoaded());
        viewer.setRecords({});
        QCOMPARE(table->rowCount(), 0);
    }
};

QTEST_MAIN(TestExperimentViewers)
#include "tst_experimentviewers.moc"
