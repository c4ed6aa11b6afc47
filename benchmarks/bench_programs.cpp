#include "benchdata.h"
#include "childprocess.h"

#include <QDir>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

namespace {

constexpr int RowsOfExperiment = 20;
constexpr int RowsOfDay = 1000;
constexpr int LinesOfFiveMinutes = BenchData::LinesPerHour / 12;

/// A data folder of that many experiments with \a lines status lines each, made once.
QString dataFolder(int count, int rows, int lines)
{
    static std::map<std::pair<int, int>, QTemporaryDir> folders;
    const bool isNew = !folders.contains({count, lines});
    const QTemporaryDir &folder = folders[{count, lines}];
    const QString records = folder.filePath(u"Records"_s);
    if (isNew
        && !(lines > 0 ? BenchData::writeRecordings(records, count, rows, lines)
                       : BenchData::writeExperiments(records, count, rows)))
        qFatal("The benchmark's data could not be written");
    return folder.path();
}

/// The processor's time and the peak memory of the program, which the benchmark's own figures leave out.
void runProgram(benchmark::State &state, const QString &program, const QStringList &arguments)
{
    double peakMegabytes = 0;
    for (auto _ : state) {
        const ChildProcess child = ChildProcess::run(program, arguments);
        if (!child.succeeded)
            state.SkipWithError("the program failed");
        peakMegabytes = std::max(peakMegabytes, child.peakMegabytes);
        state.SetIterationTime(child.cpuMs / 1000);
    }
    state.counters["peak"] = peakMegabytes;
}

void readAndParseProgram(benchmark::State &state)
{
    const QString folder = dataFolder(int(state.range(0)), RowsOfExperiment, 0);
    runProgram(state, QStringLiteral(BASELINE_LIST), {folder + "/Records"_L1});
}

void listExperiments(benchmark::State &state)
{
    const QString folder = dataFolder(int(state.range(0)), RowsOfExperiment, 0);
    runProgram(state, QStringLiteral(SPINBAR_CLI), {u"--data"_s, folder, u"list"_s, u"--json"_s});
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void tableOfDay(benchmark::State &state)
{
    const QString folder = dataFolder(1, RowsOfDay, BenchData::LinesPerDay);
    runProgram(state, QStringLiteral(SPINBAR_CLI),
               QStringList{u"--data"_s, folder, u"table"_s}
                   + QDir(folder + "/Records"_L1).entryList(QDir::Dirs | QDir::NoDotAndDotDot));
}

void exportFromShell(benchmark::State &state)
{
    const QString folder = dataFolder(int(state.range(0)), RowsOfExperiment, LinesOfFiveMinutes);
    runProgram(state, QStringLiteral(SPINBAR_CLI),
               QStringList{u"--data"_s, folder, u"export"_s, u"--output"_s, folder + "/table.xlsx"_L1}
                   + QDir(folder + "/Records"_L1).entryList(QDir::Dirs | QDir::NoDotAndDotDot));
}

} // namespace

BENCHMARK(readAndParseProgram)->Arg(10000)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(listExperiments)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(tableOfDay)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(exportFromShell)->Arg(1000)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK_MAIN();
