#include "soak/processfigures.h"

#include <QDir>
#include <QFile>

#include <csignal>
#include <sys/resource.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

qint64 ProcessFigures::residentKiB()
{
    const QList<QByteArray> lines = contentOf(u"/proc/self/status"_s).split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).simplified().split(' ').value(0).toLongLong();
    }
    return 0;
}

int ProcessFigures::openDescriptors()
{
    return int(
        QDir(u"/proc/self/fd"_s).entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System).size());
}

qint64 ProcessFigures::waitedForProcessorMs()
{
    constexpr qint64 NanosecondsPerMs = 1'000'000;
    // Run time, time waiting on a run queue, time slices.
    return contentOf(u"/proc/self/schedstat"_s).split(' ').value(1).toLongLong() / NanosecondsPerMs;
}

qint64 ProcessFigures::stolenFromMachineMs()
{
    constexpr qint64 MsPerSecond = 1000;
    constexpr int StolenField =
        8; // behind the name and the times of user, nice, system, idle, waiting, irq, softirq
    const QByteArray all = contentOf(u"/proc/stat"_s);
    return all.left(all.indexOf('\n')).simplified().split(' ').value(StolenField).toLongLong() * MsPerSecond
           / sysconf(_SC_CLK_TCK);
}

bool ProcessFigures::limitFileSize(qint64 bytes)
{
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    if (getrlimit(RLIMIT_FSIZE, &limit) != 0)
        return false;
    limit.rlim_cur = bytes < 0 ? limit.rlim_max : rlim_t(bytes);
    return setrlimit(RLIMIT_FSIZE, &limit) == 0;
}
