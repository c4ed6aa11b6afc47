#include "benchdata.h"

#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int Experiments = 10'000;
constexpr int RowsOfExperiment = 20;

void runProgram(benchmark::State &state, const QString &program, const QStringList &arguments)
{
    for (auto _ : state) {
        QProcess process;
        process.setStandardOutputFile(QProcess::nullDevice());
        process.start(program, arguments);
        if (!process.waitForFinished(-1) || process.exitCode() != 0)
            state.SkipWithError("the program failed");
    }
}

const QTemporaryDir &dataFolder()
{
    static const QTemporaryDir folder;
    static const bool written =
        BenchData::writeExperiments(folder.filePath(u"Records"_s), Experiments, RowsOfExperiment);
    if (!written)
        qFatal("The benchmark's data could not be written");
    return folder;
}

void readAndParseOnly(benchmark::State &state)
{
    runProgram(state, QStringLiteral(BASELINE_LIST), {dataFolder().filePath(u"Records"_s)});
}

void listExperiments(benchmark::State &state)
{
    runProgram(state, QStringLiteral(SPINBAR_CLI),
               {u"--data"_s, dataFolder().path(), u"list"_s, u"--json"_s});
}

} // namespace

BENCHMARK(readAndParseOnly)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(listExperiments)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_MAIN();
