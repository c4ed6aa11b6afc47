#include "framework/common/widgets/tablecopy.h"

#include "framework/common/texthelper.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QTableWidget>
#include <QTest>

using namespace Qt::StringLiterals;

class TestTableCopy : public QObject
{
    Q_OBJECT

private slots:
    void cellsAreSpreadsheetText_data()
    {
        QTest::addColumn<QString>("cell");
        QTest::addColumn<QString>("copied");
        QTest::newRow("plain") << u"a; \"b\""_s << u"a; \"b\""_s;
        QTest::newRow("quote in front") << u"\"b\" c"_s << u"\"\"\"b\"\" c\""_s;
        QTest::newRow("tab") << u"a\tb"_s << u"\"a\tb\""_s;
        QTest::newRow("line break") << u"a\n\"b\""_s << u"\"a\n\"\"b\"\"\""_s;
        QTest::newRow("empty") << QString() << QString();
    }

    void cellsAreSpreadsheetText()
    {
        QFETCH(QString, cell);
        QTableWidget table(1, 2);
        table.setItem(0, 0, new QTableWidgetItem(cell));
        table.selectRow(0);
        QFETCH(QString, copied);
        QCOMPARE(TableCopy::text(table), copied + "\t\n"_L1);
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
};

QTEST_MAIN(TestTableCopy)
#include "tst_tablecopy.moc"
