#include "core/spinbarsettings.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

void writeSameBytes(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"Settings.xml"_s);
    SpinbarSettings settings(path, nullptr);
    settings.setShowIR(true);
    QFile written(path);
    if (!written.open(QFile::ReadOnly))
        state.SkipWithError("no settings file");
    const QByteArray bytes = written.readAll();
    for (auto _ : state) {
        QFile file(folder.filePath(u"baseline"_s));
        if (!file.open(QFile::ReadWrite) || file.write(bytes) != bytes.size())
            state.SkipWithError("cannot write");
    }
}

void changeOneSetting(benchmark::State &state)
{
    const QTemporaryDir folder;
    SpinbarSettings settings(folder.filePath(u"Settings.xml"_s), nullptr);
    bool value = false;
    for (auto _ : state)
        settings.setShowIR(value = !value);
}

} // namespace

BENCHMARK(writeSameBytes)->Unit(benchmark::kMicrosecond);
BENCHMARK(changeOneSetting)->Unit(benchmark::kMicrosecond);
BENCHMARK_MAIN();
