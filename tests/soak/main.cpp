// spinbar_soak MINUTES FOLDER [SEED]: exit code 0 if nothing was found.

#include "soak/soak.h"

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QTextStream>

using namespace Qt::StringLiterals;

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QLoggingCategory::setFilterRules(u"*=false"_s);
    const QStringList arguments = QCoreApplication::arguments();
    const double minutes = arguments.value(1).toDouble();
    if (arguments.size() < 3 || minutes <= 0) {
        QTextStream(stderr) << "Usage: spinbar_soak MINUTES FOLDER [SEED]\n";
        return 2;
    }
    const quint32 seed =
        arguments.value(3).isEmpty() ? QRandomGenerator::global()->generate() : arguments.at(3).toUInt();
    QTextStream(stdout) << "Seed " << seed << Qt::endl;
    constexpr double MsPerMinute = 60'000;
    Soak soak(arguments.at(2), seed);
    return soak.run(std::chrono::milliseconds(qint64(minutes * MsPerMinute))) ? 0 : 1;
}
