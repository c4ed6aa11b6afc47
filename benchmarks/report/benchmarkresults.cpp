#include "benchmarkresults.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QStringList>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr double NanosecondsPerSecond = 1e9;

/// Without what the library appends about the way of measuring: "/real_time", "/iterations:1".
QString plainName(const QString &runName)
{
    QStringList parts = runName.split('/'_L1);
    parts.removeIf([](const QString &part) { return part.endsWith("_time"_L1) || part.contains(':'_L1); });
    return parts.join('/'_L1);
}

double nanosecondsPer(const QString &timeUnit)
{
    static const QHash<QString, double> units{{u"ns"_s, 1}, {u"us"_s, 1e3}, {u"ms"_s, 1e6}, {u"s"_s, 1e9}};
    return units.value(timeUnit, 1);
}

} // namespace

bool BenchmarkResults::add(const QByteArray &json)
{
    const QJsonObject document = QJsonDocument::fromJson(json).object();
    if (!document["benchmarks"_L1].isArray())
        return false;
    m_context = document["context"_L1].toObject();
    const QJsonArray runs = document["benchmarks"_L1].toArray();
    for (const auto &entry : runs) {
        const QJsonObject run = entry.toObject();
        if (run["error_occurred"_L1].toBool())
            continue;
        const QString name = plainName(run["run_name"_L1].toString());
        if (run["aggregate_name"_L1].toString() == "median"_L1
            || (run["run_type"_L1].toString() == "iteration"_L1 && !m_runs.contains(name)))
            m_runs[name] = run;
    }
    return true;
}

double BenchmarkResults::value(const QString &benchmark, const QString &measure) const
{
    const auto run = m_runs.find(benchmark);
    if (run == m_runs.end())
        return std::numeric_limits<double>::quiet_NaN();
    const bool isTime = measure == "cpu"_L1 || measure == "real"_L1;
    const QJsonValue value = isTime                 ? run->value(measure + "_time"_L1)
                             : measure == "item"_L1 ? run->value("items_per_second"_L1)
                                                    : run->value(measure);
    if (!value.isDouble())
        return std::numeric_limits<double>::quiet_NaN();
    if (isTime)
        return value.toDouble() * nanosecondsPer(run->value("time_unit"_L1).toString());
    return measure == "item"_L1 ? NanosecondsPerSecond / value.toDouble() : value.toDouble();
}

QString BenchmarkResults::circumstances() const
{
    return u"Taken on %1, %2 processors of %3 MHz, load average %4."_s.arg(
        m_context["date"_L1].toString().left(QStringLiteral("2000-01-01").size()),
        QString::number(m_context["num_cpus"_L1].toInt()),
        QString::number(m_context["mhz_per_cpu"_L1].toInt()),
        QString::number(m_context["load_avg"_L1].toArray().first().toDouble(), 'f', 1));
}
