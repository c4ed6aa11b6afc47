#include "benchdata.h"
#include "core/spinbarrecord.h"
#include "core/statuslog.h"
#include "detection/spinbardetection.h"
#include "device/curlymessageparser.h"
#include "device/instrumentstatus.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cstring>
#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int TableRows = 1000;
constexpr int EarlyLine = 1000;
constexpr int SixHours = 6 * BenchData::LinesPerHour;

/// An experiment folder with a log of the given length, made once each.
QString experimentFolder(int lines)
{
    static const QTemporaryDir root;
    const QString folder = root.filePath(QString::number(lines));
    if (!QFile::exists(folder)
        && !(BenchData::writeExperiment(folder, TableRows, lines)
             && BenchData::writeStatusLog(folder + "/status.log"_L1, lines)))
        qFatal("The benchmark's data could not be written");
    return folder + '/'_L1;
}

QString message(int line)
{
    return QString::fromLatin1(BenchData::statusLine(line).replace(';', ','));
}

void readAndFindLineEnds(benchmark::State &state)
{
    const QString path = experimentFolder(int(state.range(0))) + "status.log"_L1;
    for (auto _ : state) {
        QFile file(path);
        if (!file.open(QFile::ReadOnly))
            state.SkipWithError("no log");
        const QByteArray bytes = file.readAll();
        int ends = 0;
        const char *at = bytes.constData();
        const char *const end = at + bytes.size();
        while ((at = static_cast<const char *>(std::memchr(at, '\n', std::size_t(end - at))))) {
            ++ends;
            ++at;
        }
        benchmark::DoNotOptimize(ends);
    }
}

void loadStatusLog(benchmark::State &state)
{
    const QString folder = experimentFolder(int(state.range(0)));
    SpinbarRecord record(folder, QDateTime::currentDateTime());
    for (auto _ : state) {
        record.loadStatus(true);
        benchmark::DoNotOptimize(record.speeds().size());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void tableOfLoadedLog(benchmark::State &state)
{
    SpinbarRecord record(experimentFolder(int(state.range(0))), QDateTime::currentDateTime());
    record.load();
    record.loadStatus(false);
    for (auto _ : state) {
        const auto table = record.experimentTable(true);
        if (table.size() < TableRows)
            state.SkipWithError("rows are missing");
        benchmark::DoNotOptimize(table);
    }
}

// A fixed number of lines is timed right behind a record of the given length, so that the records compared
// differ in length only.
void addStatusAtLine(benchmark::State &state)
{
    const QTemporaryDir folder;
    SpinbarRecord record(folder.path(), QDateTime::currentDateTime());
    record.start();
    int line = 0;
    for (; line < state.range(0); ++line)
        record.addStatus(message(line));
    for (auto _ : state)
        record.addStatus(message(line++));
}

// What the main thread does for one message: cut it out of the bytes, read it, feed all lanes, record it.
void messageFromBytesToRecord(benchmark::State &state)
{
    const QTemporaryDir folder;
    SpinbarRecord record(folder.path(), QDateTime::currentDateTime());
    record.start();
    CurlyMessageParser parser;
    InstrumentStatus status;
    const int laneCount = int(state.range(0));
    const bool mice = laneCount == InstrumentStatus::MouseLanes;
    std::vector<std::unique_ptr<SpinbarDetection>> lanes;
    for (int lane = 0; lane < laneCount; ++lane)
        lanes.push_back(std::make_unique<SpinbarDetection>(lane, !mice));
    int line = 0;
    for (auto _ : state) {
        state.PauseTiming();
        const QByteArray bytes = '{' + BenchData::statusLine(line++, laneCount).replace(';', ',') + '}';
        state.ResumeTiming();
        const QStringList messages = parser.parseText(QString::fromUtf8(bytes));
        for (const QString &message : messages) {
            status.apply(message, mice);
            for (std::size_t lane = 0; lane < lanes.size(); ++lane) {
                lanes[lane]->update(status.readings(mice).at(qsizetype(lane)), status.rotationCounter,
                                    status.clock);
            }
            record.addStatus(message);
        }
    }
}

} // namespace

BENCHMARK(readAndFindLineEnds)->Arg(BenchData::LinesPerDay)->Unit(benchmark::kMillisecond);
BENCHMARK(loadStatusLog)
    ->Arg(BenchData::LinesPerHour)
    ->Arg(SixHours)
    ->Arg(BenchData::LinesPerDay)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(tableOfLoadedLog)
    ->Arg(BenchData::LinesPerHour)
    ->Arg(SixHours)
    ->Arg(BenchData::LinesPerDay)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(addStatusAtLine)
    ->Arg(EarlyLine)
    ->Arg(BenchData::LinesPerHour)
    ->Arg(SixHours)
    ->Arg(BenchData::LinesPerDay)
    ->Iterations(20000);
BENCHMARK(messageFromBytesToRecord)->Arg(BenchData::LanesOfRats)->Arg(BenchData::LanesOfMice);
BENCHMARK_MAIN();
