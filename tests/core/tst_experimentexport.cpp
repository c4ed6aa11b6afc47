#include "core/experimentexport.h"
#include "core/spinbarrecord.h"

#include "core/experimentfolder.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestExperimentExport : public QObject
{
    Q_OBJECT

private slots:
    void oneRecordIsOneSheetSeveralHaveASummary()
    {
        const ExperimentFolder first;
        const ExperimentFolder second;
        first.writeLog({{0, 0}, {1000, 1000}, {2000, 2000}});
        second.writeLog({{0, 0}, {1000, 1000}, {2000, 2000}});
        SpinbarRecord a(first.path(), {});
        SpinbarRecord b(second.recordsPath() + "Mouse 8"_L1, {});
        a.addItem(0, 1000, 1500, 0, true, {});
        const auto one = ExperimentExport::sheets({&a});
        QCOMPARE(one.size(), 1);
        QCOMPARE(one[0].first, u"Rat 7"_s);
        QCOMPARE(one[0].second, a.experimentTable(false));
        QCOMPARE(ExperimentExport::suggestedName({&a}), u"Rat 7"_s);

        const auto several = ExperimentExport::sheets({&a, &b});
        QCOMPARE(several.size(), 3);
        QCOMPARE(several[0].first, u"Summary"_s);
        QCOMPARE(several[0].second, SpinbarRecord::summaryTable({&a, &b}, false));
        QCOMPARE(several[2].first, u"Mouse 8"_s);
        QCOMPARE(ExperimentExport::suggestedName({&a, &b}), u"Rat 7-Mouse 8"_s);
    }

    void theFilterAndNotTheSuffixChoosesTheFormat()
    {
        using ExperimentExport::Format;
        QCOMPARE(ExperimentExport::formatOfFilter(u"Данные (*.csv)"_s), Format::Csv);
        QCOMPARE(ExperimentExport::formatOfFilter(u"Данные (*.xlsx)"_s), Format::Workbook);
        const ExperimentFolder folder;
        SpinbarRecord record(folder.path(), {});
        record.addItem(0, 1000, 1500, 0, true, {});
        const QString path = folder.recordsPath() + "out.xlsx"_L1;
        QVERIFY(ExperimentExport::write({&record}, path, Format::Csv));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArrayList lines = file.readAll().split('\n');
        QCOMPARE(lines[0], "\xEF\xBB\xBFRat 7\r");
        QCOMPARE(lines[1], "Index;Interval;Time, s;Distance, m;Rotations;Avg.speed, m/s;Fall speed, m/s;\r");
        // Without a log no time stands; the distance is 1.5 turns of 0.07 m of diameter, unrounded.
        QVERIFY(lines[2].startsWith("1;{R} 00:00-00:00 [1];0;0.32986722862692"));
        QVERIFY(lines[2].endsWith(";1.5;0;0;\r"));
        QCOMPARE(lines[4], ";M - average value;0;" + lines[2].split(';')[3] + ";1.5;0;0;\r");
        QVERIFY(!ExperimentExport::write({}, path, Format::Workbook));
        QVERIFY(!ExperimentExport::write({&record}, folder.path() + "none/x"_L1, Format::Workbook));
    }
};

QTEST_GUILESS_MAIN(TestExperimentExport)
#include "tst_experimentexport.moc"
