#include "benchdata.h"
#include "core/spinbarmodel.h"
#include "framework/common/widgets/stylehelper.h"
#include "ui/pagedatabase.h"

#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTableWidget>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <map>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize WindowSize{1600, 1000};
constexpr int RowsOfExperiment = 20;
constexpr int RowsOfDay = 1000;
constexpr int LinesOfFiveMinutes = BenchData::LinesPerDay / (24 * 12);

/// A data folder of that many experiments, made once each, with logs if there are \a lines.
QString dataFolder(int count, int rows, int lines)
{
    static std::map<std::pair<int, int>, std::unique_ptr<QTemporaryDir>> folders;
    std::unique_ptr<QTemporaryDir> &folder = folders[{count, lines}];
    if (folder)
        return folder->path();
    folder = std::make_unique<QTemporaryDir>();
    const QString records = folder->filePath(u"Records"_s);
    if (!(lines > 0 ? BenchData::writeRecordings(records, count, rows, lines)
                    : BenchData::writeExperiments(records, count, rows)))
        qFatal("The benchmark's data could not be written");
    return folder->path();
}

QTableWidget *tableOf(const PageDatabase &page)
{
    return page.findChild<QTableWidget *>(u"sortableTable"_s);
}

void readAndParseOnly(benchmark::State &state)
{
    const QString folder = dataFolder(int(state.range(0)), RowsOfExperiment, 0);
    for (auto _ : state) {
        QDirIterator walk(folder, {u"*.json"_s}, QDir::Files, QDirIterator::Subdirectories);
        int parsed = 0;
        while (walk.hasNext()) {
            QFile file(walk.next());
            if (file.open(QFile::ReadOnly) && QJsonDocument::fromJson(file.readAll()).isObject())
                ++parsed;
        }
        if (parsed != state.range(0))
            qFatal("Files are missing");
    }
}

/// From the click on the page's button to the page as it is seen.
void openPage(benchmark::State &state)
{
    SpinbarModel model(nullptr, dataFolder(int(state.range(0)), RowsOfExperiment, 0));
    for (auto _ : state) {
        state.PauseTiming();
        auto page = std::make_unique<PageDatabase>(nullptr);
        page->resize(WindowSize);
        state.ResumeTiming();
        page->show();
        QApplication::processEvents();
        state.PauseTiming();
        if (tableOf(*page)->rowCount() != state.range(0))
            qFatal("Rows are missing");
        page.reset();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

/// From the selection of all experiments to their table, and graph, as they are seen.
void selectAll(benchmark::State &state, int rows)
{
    SpinbarModel model(nullptr, dataFolder(int(state.range(0)), rows, int(state.range(1))));
    PageDatabase page(nullptr);
    page.resize(WindowSize);
    page.show();
    QApplication::processEvents();
    QTableWidget *table = tableOf(page);
    for (auto _ : state) {
        state.PauseTiming();
        table->clearSelection();
        QApplication::processEvents();
        state.ResumeTiming();
        table->selectAll();
        QApplication::processEvents();
    }
}

void selectDay(benchmark::State &state)
{
    selectAll(state, RowsOfDay);
}

void selectSeveral(benchmark::State &state)
{
    selectAll(state, RowsOfExperiment);
}

} // namespace

BENCHMARK(readAndParseOnly)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(openPage)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(selectDay)->Args({1, BenchData::LinesPerDay})->Unit(benchmark::kMillisecond);
BENCHMARK(selectSeveral)->Args({200, LinesOfFiveMinutes})->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    StyleHelper::Styler *styler = StyleHelper::Instance();
    styler->addStyleFile(u":/themes/nt.theme.css"_s);
    styler->addThemeFile(u":/themes/light.css"_s, u"light"_s);
    styler->selectTheme(u"light"_s);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
