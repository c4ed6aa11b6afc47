#include "benchmarkreport.h"
#include "benchmarkresults.h"

#include "files.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

BenchmarkReport report(const QByteArray &figure)
{
    BenchmarkResults results;
    const bool added = results.add(R"({"context": {"date": "2024-01-02T03:04:05"}, "benchmarks": [
        {"run_name": "load/9/real_time", "run_type": "iteration", "cpu_time": 999, "time_unit": "ms"},
        {"run_name": "load/9/real_time", "run_type": "aggregate", "aggregate_name": "mean",
         "cpu_time": 500, "time_unit": "ms"},
        {"run_name": "load/9/real_time", "run_type": "aggregate", "aggregate_name": "median",
         "cpu_time": 30, "real_time": 70, "time_unit": "ms", "items_per_second": 100, "peak": 12},
        {"run_name": "read", "run_type": "iteration", "cpu_time": 10000, "time_unit": "us"},
        {"run_name": "broken", "run_type": "iteration", "error_occurred": true, "cpu_time": 1, "time_unit": "ms"}]})");
    return BenchmarkReport(R"([{"section": "S", "figures": [{"figure": "F", )" + figure + "}]}]",
                           added ? results : BenchmarkResults());
}

} // namespace

/// The gate must not let a figure through that is over its limit or was not measured at all.
class TestBenchmarkReport : public QObject
{
    Q_OBJECT

private slots:
    void aFigureIsJudgedByTheMedian()
    {
        const auto check = [](const QByteArray &figure, const QString &verdict) {
            const BenchmarkReport made = report(figure);
            const auto figures = QJsonDocument::fromJson(made.toJson())["figures"_L1];
            QVERIFY2(figures[0]["verdict"_L1].toString() == verdict, figure);
            const bool held = verdict == "held" || verdict.isEmpty();
            QCOMPARE(made.isHeld(), held);
            QCOMPARE(made.complaints().size(), held ? 0 : 1);
        };
        check(R"("benchmark": "load/9", "limit": "30 ms")", u"held"_s);
        check(R"("benchmark": "load/9", "limit": "29999 us")", u"over"_s);
        check(R"("benchmark": "load/9", "measure": "real", "limit": "69 ms")", u"over"_s);
        check(R"("benchmark": "load/9", "baseline": "read", "factor": 3)", u"held"_s);
        check(R"("benchmark": "load/9", "baseline": "read", "factor": 2.9)", u"over"_s);
        check(R"("benchmark": "load/9", "baseline": "read", "factor": 3, "limit": "29 ms")", u"over"_s);
        check(R"("benchmark": "load/9", "measure": "item", "limit": "9 ms")", u"over"_s);
        check(R"("benchmark": "load/9", "measure": "peak", "unit": "MB", "limit": "12 MB")", u"held"_s);
        check(R"("benchmark": "load/9", "measure": "peak", "unit": "ms", "limit": "11 ms")", u"over"_s);
        check(R"("benchmark": "load/9", "baseline": "read")", {});
        check(R"("benchmark": "load", "limit": "30 ms")", u"missing"_s);
        check(R"("benchmark": "load/9", "measure": "size", "limit": "30 ms")", u"missing"_s);
        check(R"("benchmark": "load/9", "baseline": "written", "factor": 3)", u"missing"_s);
        check(R"("benchmark": "broken", "limit": "30 ms")", u"missing"_s);
    }

    void theTableReplacesTheOldOne()
    {
        const BenchmarkReport made = report(
            R"("benchmark": "load/9", "against": "B", "baseline": "read", "factor": 3.5, "limit": "1 s")");
        const QString document =
            "before\n<!-- table of tools/bench: begin -->\n%1<!-- table of tools/bench: end -->\nafter";
        const QString written = made.insertedInto(document.arg("old\n"));
        QVERIFY(written.contains(
            "| F (`load/9`) | 30 ms | B (`read`): 10 ms | 3.00 | \u00D7 3.5, 1 s | held |\n"));
        QCOMPARE(written, document.arg('\n' + made.toMarkdown() + '\n'));
        QCOMPARE(made.insertedInto(written), written);
        QVERIFY(made.insertedInto("no marks").isEmpty());
        QVERIFY(!BenchmarkReport("no list", BenchmarkResults()).isHeld());
        QVERIFY(!BenchmarkReport(contents(LIMITS), BenchmarkResults()).isHeld());
    }
};

QTEST_GUILESS_MAIN(TestBenchmarkReport)
#include "tst_benchmarkreport.moc"
