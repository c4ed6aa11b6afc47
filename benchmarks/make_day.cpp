#include "benchdata.h"

#include <QFile>

namespace {

constexpr int Rows = 1000;

} // namespace

// Makes the experiment folder that is named: a day's log with its rows.
int main(int argc, char **argv)
{
    if (argc != 2)
        return 2;
    const QString folder = QFile::decodeName(argv[1]);
    const bool made =
        BenchData::writeExperiment(folder, Rows, BenchData::LinesPerDay)
        && BenchData::writeStatusLog(folder + QStringLiteral("/status.log"), BenchData::LinesPerDay);
    return made ? 0 : 1;
}
