#include "benchmarkreport.h"
#include "benchmarkresults.h"

#include <QFile>
#include <QStringList>
#include <QTextStream>

#include <optional>

namespace {

constexpr int ExitOver = 1;
constexpr int ExitUsage = 2;

std::optional<QByteArray> contents(const QString &path)
{
    QFile file(path);
    if (file.open(QFile::ReadOnly))
        return file.readAll();
    QTextStream(stderr) << path << ": " << file.errorString() << '\n';
    return {};
}

bool replace(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QFile::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace

// Makes one table of what the benchmark programs measured and tells whether all figures are within limits.
int main(int argc, char **argv)
{
    QStringList paths;
    for (int i = 1; i < argc; ++i)
        paths += QFile::decodeName(argv[i]);
    if (paths.size() < 4) {
        QTextStream(stderr) << "benchreport LIMITS DOCUMENT JSON RESULTS...\n";
        return ExitUsage;
    }
    const auto limits = contents(paths.takeFirst());
    const QString documentPath = paths.takeFirst();
    const auto document = contents(documentPath);
    const QString jsonPath = paths.takeFirst();
    if (!limits || !document)
        return ExitUsage;

    BenchmarkResults results;
    for (const QString &path : std::as_const(paths)) {
        if (!results.add(contents(path).value_or(QByteArray())))
            QTextStream(stderr) << path << ": no results\n";
    }
    const BenchmarkReport report(*limits, results);
    const QByteArray table = report.insertedInto(QString::fromUtf8(*document)).toUtf8();
    if (table.isEmpty() || !replace(documentPath, table) || !replace(jsonPath, report.toJson())) {
        QTextStream(stderr) << documentPath << ", " << jsonPath << ": not written\n";
        return ExitUsage;
    }
    for (const QString &complaint : report.complaints())
        QTextStream(stdout) << complaint << '\n';
    return report.isHeld() ? 0 : ExitOver;
}
