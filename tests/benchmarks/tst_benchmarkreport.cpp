#include "benchmarkreport.h"
#include "benchmarkresults.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

/// The gate must not let a figure through that is over its limit or was not measured at all.
class BenchmarkReportTest : public QObject
{
    Q_OBJECT

private slots:
    void aFigureIsJudgedByTheMedian_data();
    void aFigureIsJudgedByTheMedian();
    void theTableReplacesTheOldOne();
    void theListOfFiguresIsSound();

private:
    static BenchmarkReport report(const QByteArray &figure);
};

BenchmarkReport BenchmarkReportTest::report(const QByteArray &figure)
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

void BenchmarkReportTest::aFigureIsJudgedByTheMedian_data()
{
    QTest::addColumn<QByteArray>("figure");
    QTest::addColumn<QString>("verdict");
    const auto row = [](const char *name, const char *figure, const char *verdict) {
        QTest::newRow(name) << QByteArray(figure) << QString::fromLatin1(verdict);
    };
    row("within the limit", R"("benchmark": "load/9", "limit": "30 ms")", "held");
    row("over the limit", R"("benchmark": "load/9", "limit": "29999 us")", "over");
    row("elapsed time", R"("benchmark": "load/9", "measure": "real", "limit": "69 ms")", "over");
    row("within the factor", R"("benchmark": "load/9", "baseline": "read", "factor": 3)", "held");
    row("over the factor", R"("benchmark": "load/9", "baseline": "read", "factor": 2.9)", "over");
    row("over one of both", R"("benchmark": "load/9", "baseline": "read", "factor": 3, "limit": "29 ms")",
        "over");
    row("an item", R"("benchmark": "load/9", "measure": "item", "limit": "9 ms")", "over");
    row("a counter", R"("benchmark": "load/9", "measure": "peak", "unit": "MB", "limit": "12 MB")", "held");
    row("a counter of time", R"("benchmark": "load/9", "measure": "peak", "unit": "ms", "limit": "11 ms")",
        "over");
    row("no limit", R"("benchmark": "load/9", "baseline": "read")", "");
    row("no such benchmark", R"("benchmark": "load", "limit": "30 ms")", "missing");
    row("no such counter", R"("benchmark": "load/9", "measure": "size", "limit": "30 ms")", "missing");
    row("no baseline", R"("benchmark": "load/9", "baseline": "written", "factor": 3)", "missing");
    row("a benchmark that failed", R"("benchmark": "broken", "limit": "30 ms")", "missing");
}

void BenchmarkReportTest::aFigureIsJudgedByTheMedian()
{
    QFETCH(QByteArray, figure);
    QFETCH(QString, verdict);
    const BenchmarkReport made = report(figure);
    const auto figures = QJsonDocument::fromJson(made.toJson())["figures"_L1];
    QCOMPARE(figures[0]["verdict"_L1].toString(), verdict);
    const bool held = verdict == "held" || verdict.isEmpty();
    QCOMPARE(made.isHeld(), held);
    QCOMPARE(made.complaints().size(), held ? 0 : 1);
}

void BenchmarkReportTest::theTableReplacesTheOldOne()
{
    const BenchmarkReport made =
        report(R"("benchmark": "load/9", "against": "B", "baseline": "read", "factor": 3.5, "limit": "1 s")");
    const QString document =
        "before\n<!-- table of tools/bench: begin -->\n%1<!-- table of tools/bench: end -->\nafter";
    const QString written = made.insertedInto(document.arg("old\n"));
    QVERIFY(
        written.contains("| F (`load/9`) | 30 ms | B (`read`): 10 ms | 3.00 | \u00D7 3.5, 1 s | held |\n"));
    QCOMPARE(written, document.arg('\n' + made.toMarkdown() + '\n'));
    QCOMPARE(made.insertedInto(written), written);
    QVERIFY(made.insertedInto("no marks").isEmpty());
}

void BenchmarkReportTest::theListOfFiguresIsSound()
{
    QFile file(LIMITS);
    QVERIFY(file.open(QFile::ReadOnly));
    const QByteArray limits = file.readAll();
    QVERIFY(!BenchmarkReport(limits, BenchmarkResults()).isHeld());
    QVERIFY(!BenchmarkReport("no list", BenchmarkResults()).isHeld());
    static const QRegularExpression quantity("^[0-9.]+ (s|ms|us|ns|MB|B|%)$");
    const QJsonArray sections = QJsonDocument::fromJson(limits).array();
    for (const auto &section : sections) {
        const QJsonArray figures = section["figures"_L1].toArray();
        QVERIFY(!figures.isEmpty());
        for (const auto &figure : figures) {
            const QByteArray name = figure["benchmark"_L1].toString().toUtf8();
            QVERIFY2(!name.isEmpty() && !figure["figure"_L1].toString().contains('|'), name);
            const QString limit = figure["limit"_L1].toString();
            QVERIFY2(limit.isEmpty() || quantity.match(limit).hasMatch(), name);
            QVERIFY2(figure.toObject().contains("baseline") || !figure.toObject().contains("factor"), name);
        }
    }
}

QTEST_GUILESS_MAIN(BenchmarkReportTest)
#include "tst_benchmarkreport.moc"
