#include "childprocess.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

/// From the start of the process to the first painted frame of its window, which is where the plugin ends it.
void startToFirstFrame(benchmark::State &state, const QString &program)
{
    const QTemporaryDir folder;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_PLUGIN_PATH"_s, QStringLiteral(PLUGIN_FOLDER));
    environment.insert(u"QT_QPA_GENERIC_PLUGINS"_s, u"firstframe"_s);
    environment.insert(u"XDG_DATA_HOME"_s, folder.path());
    environment.insert(u"SPINBAR_SERIAL_PORTS"_s, QString());
    double cpuMs = 0;
    for (auto _ : state) {
        const ChildProcess child = ChildProcess::run(program, {}, environment);
        if (!child.succeeded)
            state.SkipWithError("the program showed nothing");
        cpuMs += child.cpuMs;
    }
    state.counters["cpuMs"] = {cpuMs, benchmark::Counter::kAvgIterations};
}

void emptyWindow(benchmark::State &state)
{
    startToFirstFrame(state, QStringLiteral(BASELINE_WINDOW));
}

/// Goal: at most six times the empty window, and under 350 ms.
void startSpinbar(benchmark::State &state)
{
    startToFirstFrame(state, QStringLiteral(SPINBAR));
}

} // namespace

BENCHMARK(emptyWindow)->Unit(benchmark::kMillisecond)->UseRealTime()->MinTime(0.5);
BENCHMARK(startSpinbar)->Unit(benchmark::kMillisecond)->UseRealTime()->MinTime(0.5);
BENCHMARK_MAIN();
