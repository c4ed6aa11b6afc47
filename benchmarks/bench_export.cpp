#include "benchdata.h"
#include "core/experimentexport.h"
#include "core/experimentlibrary.h"
#include "core/spinbarrecord.h"

#include <QDateTime>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <xlsxwriter.h>

#include <map>
#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int Rows = 20;
// Five minutes.
constexpr int Lines = 1500;

/// So many recordings on disk, read as the records page reads them, made once.
class Recordings
{
public:
    static const Recordings &of(int count)
    {
        static std::map<int, Recordings> made;
        return made.try_emplace(count, count).first->second;
    }

    explicit Recordings(int count)
    {
        if (!BenchData::writeRecordings(folder.path(), count, Rows, Lines))
            qFatal("The benchmark's data could not be written");
        for (const QString &path : ExperimentLibrary(folder.path()).folders()) {
            owned.push_back(std::make_unique<SpinbarRecord>(path, QDateTime::currentDateTime()));
            owned.back()->load();
            records.append(owned.back().get());
        }
    }

    QTemporaryDir folder;
    std::vector<std::unique_ptr<SpinbarRecord>> owned;
    QList<SpinbarRecord *> records;
};

void exportExperiments(benchmark::State &state, ExperimentExport::Format format)
{
    const Recordings &recordings = Recordings::of(int(state.range(0)));
    const QTemporaryDir target;
    for (auto _ : state) {
        if (!ExperimentExport::write(recordings.records, target.filePath(u"table"_s), format))
            state.SkipWithError("not written");
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void exportWorkbook(benchmark::State &state)
{
    exportExperiments(state, ExperimentExport::Format::Workbook);
}

void exportCsv(benchmark::State &state)
{
    exportExperiments(state, ExperimentExport::Format::Csv);
}

/// The same cells with nothing but the library that writes workbooks.
void workbookLibraryAlone(benchmark::State &state)
{
    const Recordings &recordings = Recordings::of(int(state.range(0)));
    const auto sheets = ExperimentExport::sheets(recordings.records);
    const QTemporaryDir target;
    const QByteArray path = target.filePath(u"table.xlsx"_s).toUtf8();
    for (auto _ : state) {
        lxw_workbook *workbook = workbook_new(path.constData());
        for (const auto &[name, rows] : sheets) {
            lxw_worksheet *sheet = workbook_add_worksheet(workbook, name.toUtf8().constData());
            for (qsizetype row = 0; row < rows.size(); ++row) {
                for (qsizetype column = 0; column < rows[row].size(); ++column) {
                    const QVariant &cell = rows[row][column];
                    if (cell.typeId() == QMetaType::QString)
                        worksheet_write_string(sheet, lxw_row_t(row), lxw_col_t(column),
                                               cell.toString().toUtf8().constData(), nullptr);
                    else
                        worksheet_write_number(sheet, lxw_row_t(row), lxw_col_t(column), cell.toDouble(),
                                               nullptr);
                }
            }
        }
        if (workbook_close(workbook) != LXW_NO_ERROR)
            state.SkipWithError("not written");
    }
}

} // namespace

BENCHMARK(exportWorkbook)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(workbookLibraryAlone)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(exportCsv)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
