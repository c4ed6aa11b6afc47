#include "benchdata.h"
#include "core/experimentlibrary.h"
#include "core/spinbarrecord.h"
#include "ui/experimentviewer.h"
#include "ui/multiexperimentviewer.h"

#include <QApplication>
#include <QDateTime>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

namespace {

constexpr QSize ViewerSize{1200, 800};
constexpr int LinesOfFiveMinutes = 1500;
constexpr int RowsOfFiveMinutes = 20;

/// Reads the log, shows table and graph, and paints both. Goal: under 300 ms for a day.
void showDay(benchmark::State &state)
{
    const QTemporaryDir folder;
    if (!BenchData::writeRecordings(folder.path(), 1, int(state.range(0)), BenchData::LinesPerDay))
        state.SkipWithError("no data");
    SpinbarRecord record(ExperimentLibrary(folder.path()).folders().value(0), QDateTime::currentDateTime());
    record.load();
    ExperimentViewer viewer;
    viewer.resize(ViewerSize);
    viewer.show();
    QApplication::processEvents();
    for (auto _ : state) {
        viewer.setRecord(nullptr);
        viewer.setRecord(&record);
        viewer.grab();
    }
}
BENCHMARK(showDay)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

/// Goal: under 500 ms for 200 experiments of five minutes.
void showMany(benchmark::State &state)
{
    const QTemporaryDir folder;
    if (!BenchData::writeRecordings(folder.path(), int(state.range(0)), RowsOfFiveMinutes,
                                    LinesOfFiveMinutes))
        state.SkipWithError("no data");
    std::vector<std::unique_ptr<SpinbarRecord>> owned;
    QList<SpinbarRecord *> records;
    for (const QString &path : ExperimentLibrary(folder.path()).folders()) {
        owned.push_back(std::make_unique<SpinbarRecord>(path, QDateTime::currentDateTime()));
        owned.back()->load();
        records.append(owned.back().get());
    }
    MultiExperimentViewer viewer;
    viewer.resize(ViewerSize);
    viewer.show();
    QApplication::processEvents();
    for (auto _ : state) {
        viewer.setRecords(records);
        viewer.grab();
    }
}
BENCHMARK(showMany)->Arg(200)->Arg(1000)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
