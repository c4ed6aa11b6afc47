#pragma once

#include <QHash>
#include <QJsonObject>
#include <QString>

/// What the benchmark programs measured: of each benchmark the median of its repetitions.
class BenchmarkResults
{
public:
    /// Adds the JSON that one program wrote; false if it is none. Benchmarks that failed are left out.
    bool add(const QByteArray &json);

    /// \a measure is "cpu" or "real" for a time in nanoseconds, "item" for that of one item, or a counter;
    /// not a number if it was not measured.
    double value(const QString &benchmark, const QString &measure) const;

    /// When and on what the benchmarks ran.
    QString circumstances() const;

private:
    QHash<QString, QJsonObject> m_runs;
    QJsonObject m_context;
};
