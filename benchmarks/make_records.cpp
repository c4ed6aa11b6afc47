#include "benchdata.h"

#include <QFile>

// Fills the records folder that is named: so many recordings of so many rows and status lines.
int main(int argc, char **argv)
{
    if (argc != 5)
        return 2;
    const auto number = [argv](int at) { return QByteArray(argv[at]).toInt(); };
    return BenchData::writeRecordings(QFile::decodeName(argv[1]), number(2), number(3), number(4)) ? 0 : 1;
}
