#include "scripts/scriptexpansion.h"
#include "scripts/scriptplayer.h"
#include "scripts/speedscript.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>

namespace {

constexpr int LongestScriptSeconds = 10000;

/// \a corners ramps of equal length over the longest script.
ScriptPoints zigzag(int corners)
{
    ScriptPoints points;
    for (int i = 0; i <= corners; ++i)
        points.append({double(LongestScriptSeconds) * i / corners, i % 2 == 0 ? 0.0 : 30.0});
    return points;
}

/// Goal: under 1 ms.
void expandLongestScript(benchmark::State &state)
{
    const ScriptPoints points = zigzag(static_cast<int>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(expandScript(points, LongestScriptSeconds));
}
BENCHMARK(expandLongestScript)->Arg(1)->Arg(100)->Arg(10000)->Unit(benchmark::kMicrosecond);

/// One tick of a run, a fourth of which command a speed.
void playerTick(benchmark::State &state)
{
    SpeedScript script{QString()};
    script.setPointList(zigzag(100));
    script.setDurationSeconds(LongestScriptSeconds);
    qint64 nowMs = 1;
    double sum = 0;
    ScriptPlayer player(nullptr, [&nowMs] { return nowMs; });
    QObject::connect(&player, &ScriptPlayer::speedDue, &player, [&sum](double speed) { sum += speed; });
    player.setScript(&script);
    player.setRunning(true);
    for (auto _ : state) {
        nowMs += ScriptStepMs / 4;
        player.tick();
    }
    benchmark::DoNotOptimize(sum);
}
BENCHMARK(playerTick);

/// A damaged or generated file with a million points.
void parseMillionPoints(benchmark::State &state)
{
    const QString text = scriptPointsText(zigzag(1'000'000));
    for (auto _ : state)
        benchmark::DoNotOptimize(parseScriptPoints(text));
}
BENCHMARK(parseMillionPoints)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv); // the player's timer needs one
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
