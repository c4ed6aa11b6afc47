#include "benchdata.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 FirstClockMs = 60'000;
// About 20 drum turns a minute in thousandths of a motor rotation each 200 ms.
constexpr qint64 CounterStep = 632;
constexpr qint64 FirstTimestampMs = 1'700'000'000'000;
constexpr qint64 HourMs = 3'600'000;
constexpr double RotationsOfRow = 3333.0;

QString experimentName(int number)
{
    return QDateTime::fromMSecsSinceEpoch(FirstTimestampMs + number * HourMs, Qt::UTC)
        .toString(u"yyyy.MM.dd-hh.mm.ss.zzz"_s);
}

} // namespace

QByteArray BenchData::statusLine(int line, int lanes)
{
    const qint64 clock = FirstClockMs + qint64(line) * StatusPeriodMs;
    const qint64 counter = qint64(line) * CounterStep + line % 7;
    QByteArray text = "S;1;0;0";
    for (int lane = 0; lane < lanes; ++lane)
        text += ';' + QByteArray::number((line / 50 + lane) % 3 == 0 ? 20 + line % 3 : 40 - line % 3, 16);
    return text + ';' + QByteArray::number(counter, 16) + ';' + QByteArray::number(clock, 16);
}

bool BenchData::writeStatusLog(const QString &path, int lines)
{
    QFile file(path);
    if (!file.open(QFile::WriteOnly))
        return false;
    for (int line = 0; line < lines; ++line)
        file.write(statusLine(line) + "\r\n");
    return file.error() == QFile::NoError;
}

bool BenchData::writeExperiment(const QString &folder, int rows, int lines)
{
    QJsonArray items;
    for (int row = 0; row < rows; ++row) {
        const qint64 start = FirstClockMs + qint64(row) * lines / rows * StatusPeriodMs;
        items.append(QJsonObject{{u"start"_s, start},
                                 {u"end"_s, start + qint64(lines) / rows * StatusPeriodMs / 2},
                                 {u"rotations"_s, RotationsOfRow + row},
                                 {u"rat"_s, true},
                                 {u"index"_s, row % LanesOfRats}});
    }
    const QJsonObject experiment{{u"time"_s, u"Tue Nov 14 22:13:20 2023"_s},
                                 {u"timestamp"_s, FirstTimestampMs},
                                 {u"ts"_s, FirstClockMs},
                                 {u"title"_s, u"Group A"_s},
                                 {u"comment"_s, u"Control, second day"_s},
                                 {u"sn"_s, u"B42403101"_s},
                                 {u"items"_s, items}};
    QFile file(folder + "/experiment.json"_L1);
    return QDir().mkpath(folder) && file.open(QFile::WriteOnly)
           && file.write(QJsonDocument(QJsonObject{{u"experiment"_s, experiment}}).toJson()) > 0;
}

bool BenchData::writeExperiments(const QString &recordsFolder, int count, int rows)
{
    for (int i = 0; i < count; ++i) {
        if (!writeExperiment(recordsFolder + '/'_L1 + experimentName(i), rows, rows * 100))
            return false;
    }
    return true;
}

bool BenchData::writeRecordings(const QString &recordsFolder, int count, int rows, int lines)
{
    for (int i = 0; i < count; ++i) {
        const QString folder = recordsFolder + '/'_L1 + experimentName(i);
        if (!writeExperiment(folder, rows, lines) || !writeStatusLog(folder + "/status.log"_L1, lines))
            return false;
    }
    return true;
}
