#include "benchdata.h"
#include "core/experimentlibrary.h"
#include "core/spinbarrecord.h"
#include "ui/experimentviewer.h"
#include "ui/multiexperimentviewer.h"

#include <QApplication>
#include <QDateTime>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <array>
#include <map>
#include <memory>
#include <vector>

namespace {

constexpr QSize ViewerSize{1200, 800};
constexpr int LinesOfFiveMinutes = 1500;
constexpr int RowsOfFiveMinutes = 20;

/// Recordings on disk, read as the records page reads them, made once of each count and length.
class Recordings
{
public:
    static const QList<SpinbarRecord *> &of(int count, int rows, int lines)
    {
        static std::map<std::array<int, 3>, Recordings> made;
        const std::array<int, 3> key{count, rows, lines};
        return made.try_emplace(key, count, rows, lines).first->second.m_records;
    }

    Recordings(int count, int rows, int lines)
    {
        if (!BenchData::writeRecordings(m_folder.path(), count, rows, lines))
            qFatal("The benchmark's data could not be written");
        for (const QString &path : ExperimentLibrary(m_folder.path()).folders()) {
            m_owned.push_back(std::make_unique<SpinbarRecord>(path, QDateTime::currentDateTime()));
            m_owned.back()->load();
            m_records.append(m_owned.back().get());
        }
    }

private:
    QTemporaryDir m_folder;
    std::vector<std::unique_ptr<SpinbarRecord>> m_owned;
    QList<SpinbarRecord *> m_records;
};

/// Reads the log, shows table and graph, and paints both. Goal: under 300 ms for a day.
void showDay(benchmark::State &state)
{
    SpinbarRecord *record = Recordings::of(1, int(state.range(0)), BenchData::LinesPerDay).constFirst();
    ExperimentViewer viewer;
    viewer.resize(ViewerSize);
    viewer.show();
    QApplication::processEvents();
    for (auto _ : state) {
        viewer.setRecord(nullptr);
        viewer.setRecord(record);
        viewer.grab();
    }
}
BENCHMARK(showDay)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

/// Goal: under 500 ms for 200 experiments of five minutes.
void showMany(benchmark::State &state)
{
    const QList<SpinbarRecord *> &records =
        Recordings::of(int(state.range(0)), RowsOfFiveMinutes, LinesOfFiveMinutes);
    MultiExperimentViewer viewer;
    viewer.resize(ViewerSize);
    viewer.show();
    QApplication::processEvents();
    for (auto _ : state) {
        viewer.setRecords(records);
        viewer.grab();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(showMany)->Arg(200)->Arg(1000)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
