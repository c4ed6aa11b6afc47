#include "core/experimentexport.h"
#include "core/experimentstatistics.h"
#include "core/spinbarrecord.h"

#include "core/experimentfolder.h"
#include "rows.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double RatDrum = 3.141592653589793 * 0.07;
constexpr double MouseDrum = 3.141592653589793 * 0.04;

QList<double> numbers(const QList<QVariant> &row)
{
    QList<double> values;
    for (const QVariant &cell : row) {
        if (cell.typeId() == QMetaType::Double)
            values.append(cell.toDouble());
    }
    return values;
}

QStringList texts(const QList<QVariant> &row)
{
    QStringList values;
    for (const QVariant &cell : row)
        values.append(cell.typeId() == QMetaType::Double ? u"#"_s : cell.toString());
    return values;
}

bool near(const QList<double> &values, const QList<double> &expected)
{
    return std::equal(values.begin(), values.end(), expected.begin(), expected.end(), [](double a, double b) {
        return std::isnan(b) ? std::isnan(a) : std::abs(a - b) < 1e-12;
    });
}

} // namespace

class TestExperimentTables : public QObject
{
    Q_OBJECT

private slots:
    void sampleStatistics_data()
    {
        const auto row = columns<QList<double>, QList<double>>("values", "statistics");
        row("none", {}, {0, 0, 0});
        row("one", {7}, {7, std::nan(""), std::nan("")});
        row("two", {10, 20}, {15, 50, std::sqrt(50.0)});
        row("equal", {3, 3, 3}, {3, 0, 0});
        row("four", {1, 2, 3, 6}, {3, 14.0 / 3, std::sqrt(14.0 / 3)});
    }

    void sampleStatistics()
    {
        QFETCH(QList<double>, values);
        QFETCH(QList<double>, statistics);
        double mean = -1;
        double dispersion = -1;
        double deviation = -1;
        m_d_cko(values, &mean, &dispersion, &deviation);
        QVERIFY(near({mean, dispersion, deviation}, statistics));
    }

    void experimentTable()
    {
        const ExperimentFolder folder;
        // 1 rotation of the motor per second, and 5 in the last period.
        folder.writeLog({{100000, 0}, {104000, 4000}, {110000, 10000}, {110200, 11000}});
        SpinbarRecord record(folder.path(), {});
        record.addItem(104000, 110200, 3000, 1, true, {});
        record.addItem(100000, 104000, 1000, 6, false, {});
        const auto table = record.experimentTable(true);
        QCOMPARE(texts(table[0]), QStringList({u"Index"_s, u"Interval"_s, u"Time, s"_s, u"Distance, m"_s,
                                               u"Rotations"_s, u"Avg.speed, m/s"_s, u"Fall speed, m/s"_s}));
        QCOMPARE(texts(table[1]).first(2), QStringList({u"1"_s, u"{M} 00:00-00:04 [7]"_s}));
        QCOMPARE(texts(table[2]).first(2), QStringList({u"2"_s, u"{R} 00:04-00:10 [2]"_s}));
        // No status line lies 200 ms before the first fall.
        QVERIFY(near(numbers(table[1]), {4, MouseDrum, 1, MouseDrum, 0}));
        QVERIFY(near(numbers(table[2]), {6.2, 3 * RatDrum, 3, 7 / 6.2 * RatDrum, 5 * RatDrum}));
        QVERIFY(table[3].isEmpty());
        QCOMPARE(texts(table[4]).first(2), QStringList({QString(), u"M"_s}));
        QCOMPARE(numbers(table[4])[2], 2.0);
        QCOMPARE(numbers(table[5])[2], 2.0);
        QCOMPARE(numbers(table[6])[2], std::sqrt(2.0));
        QCOMPARE(table.size(), 7);
        QCOMPARE(texts(record.experimentTable(false)[6]).first(2),
                 QStringList({QString(), u"CKO - standard deviation"_s}));
    }

    void tableWithoutOrWithOneRowHasNumbersOnly()
    {
        const ExperimentFolder folder;
        SpinbarRecord record(folder.path(), {});
        auto table = record.experimentTable(false);
        QCOMPARE(table.size(), 5);
        for (int row = 2; row < 5; ++row)
            QCOMPARE(numbers(table[row]), QList<double>(5, 0.0));
        folder.writeLog({{0, 0}, {1000, 1000}});
        record.addItem(0, 1000, 500, 0, true, {});
        table = record.experimentTable(false);
        QVERIFY(near(numbers(table[3]), {1, RatDrum / 2, 0.5, RatDrum, 0}));
        QCOMPARE(numbers(table[4]), QList<double>(5, 0.0));
        QCOMPARE(numbers(table[5]), QList<double>(5, 0.0));
    }

    void summaryTable()
    {
        const ExperimentFolder rats;
        rats.writeLog({{100000, 0}, {110000, 10000}});
        SpinbarRecord ratRecord(rats.path(), {});
        ratRecord.setTitle(u"group A"_s);
        ratRecord.setComment(u"calm"_s);
        ratRecord.addItem(100000, 110000, 10000, 0, true, {});
        ratRecord.addItem(100000, 110000, 20000, 0, false, {});
        ratRecord.addItem(100000, 110000, -1, 0, true, {});
        const ExperimentFolder mice;
        // A clock that starts near 0 is the only one for which the summary finds its status lines.
        mice.writeLog({{0, 0}, {2000, 2000}, {2200, 3000}});
        SpinbarRecord mouseRecord(mice.path(), {});
        mouseRecord.addItem(0, 2000, 4000, 0, false, {});
        const ExperimentFolder none;
        SpinbarRecord emptyRecord(none.path(), {});

        const auto table = SpinbarRecord::summaryTable({&ratRecord, &mouseRecord, &emptyRecord}, true);
        QCOMPARE(texts(table[0]).sliced(3, 3), QStringList({u"N"_s, u"Time,  s"_s, u"Distance,  m"_s}));
        QCOMPARE(texts(table[1]).first(4), QStringList({u"{R} Rat 7"_s, u"group A"_s, u"calm"_s, u"3"_s}));
        QCOMPARE(table[1][3].typeId(), int(QMetaType::Int));
        QCOMPARE(texts(table[2]).first(), u"{M} Rat 7"_s);
        // The third row at one start replaces the second; N counts the raw ones.
        QVERIFY(near(numbers(table[1]), {9.9995, (10 * RatDrum - 0.001 * RatDrum) / 2, 4.9995, 0, 0}));
        QVERIFY(near(numbers(table[2]), {2, 4 * MouseDrum, 4, MouseDrum, 5 * MouseDrum}));
        QCOMPARE(numbers(table[3]), QList<double>(5, 0.0));
        QVERIFY(table[4].isEmpty());
        QCOMPARE(texts(table[5]).first(4), QStringList({QString(), QString(), QString(), u"M"_s}));
        QCOMPARE(numbers(table[5])[2], (4.9995 + 4) / 3);
        QCOMPARE(table.size(), 8);
        QVERIFY(!mouseRecord.isStatusLoaded());
    }

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
        const QByteArrayList lines = contents(path).split('\n');
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

QTEST_GUILESS_MAIN(TestExperimentTables)
#include "tst_experimenttables.moc"
