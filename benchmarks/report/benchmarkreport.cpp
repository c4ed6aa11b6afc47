#include "benchmarkreport.h"

#include "benchmarkresults.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QStringList>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr auto TableBegin = "<!-- table of tools/bench: begin -->\n"_L1;
constexpr auto TableEnd = "<!-- table of tools/bench: end -->\n"_L1;
constexpr int SignificantDigits = 3;

struct TimeUnit
{
    QLatin1StringView name;
    double nanoseconds;
};
constexpr TimeUnit TimeUnits[] = {{"s"_L1, 1e9}, {"ms"_L1, 1e6}, {"us"_L1, 1e3}, {"ns"_L1, 1}};

/// Of \a unit in nanoseconds; 1 if it is none of time.
double scaleOf(const QString &unit)
{
    const auto *found = std::find_if(std::begin(TimeUnits), std::end(TimeUnits),
                                     [&](const TimeUnit &known) { return known.name == unit; });
    return found == std::end(TimeUnits) ? 1 : found->nanoseconds;
}

QString digits(double value)
{
    // Whole numbers stay whole, however long.
    return value >= 100 ? QString::number(value, 'f', 0) : QString::number(value, 'g', SignificantDigits);
}

QString quantity(double value, const QString &unit)
{
    if (!unit.isEmpty())
        return digits(value) + ' '_L1 + unit;
    const auto *fitting =
        std::find_if(std::begin(TimeUnits), std::end(TimeUnits) - 1,
                     [value](const TimeUnit &candidate) { return value >= candidate.nanoseconds; });
    return digits(value / fitting->nanoseconds) + ' '_L1 + QString(fitting->name).replace('u'_L1, u'\u00B5');
}

/// Of a limit such as "50 ms".
double amount(const QString &limit)
{
    const QStringList parts = limit.split(' '_L1);
    return parts.first().toDouble() * scaleOf(parts.last());
}

QString verdictText(BenchmarkReport::Verdict verdict)
{
    switch (verdict) {
    case BenchmarkReport::Verdict::Held:
        return u"held"_s;
    case BenchmarkReport::Verdict::Over:
        return u"**over**"_s;
    case BenchmarkReport::Verdict::Missing:
        return u"**missing**"_s;
    case BenchmarkReport::Verdict::Unlimited:
        break;
    }
    return {};
}

QString named(const QJsonObject &figure, QLatin1StringView text, QLatin1StringView benchmark)
{
    return "%1 (`%2`)"_L1.arg(figure[text].toString(), figure[benchmark].toString());
}

} // namespace

BenchmarkReport::BenchmarkReport(const QByteArray &limits, const BenchmarkResults &results)
    : m_circumstances(results.circumstances())
{
    const QJsonArray sections = QJsonDocument::fromJson(limits).array();
    for (const auto &section : sections) {
        const QJsonArray figures = section["figures"_L1].toArray();
        for (const auto &figure : figures)
            m_rows += judge(section["section"_L1].toString(), figure.toObject(), results);
    }
}

BenchmarkReport::Row BenchmarkReport::judge(const QString &section, const QJsonObject &figure,
                                            const BenchmarkResults &results)
{
    Row row;
    row.section = section;
    row.figure = figure;
    const QString measure = figure["measure"_L1].toString(u"cpu"_s);
    const QString unit = figure["unit"_L1].toString();
    const QString limit = figure["limit"_L1].toString();
    const double factor = figure["factor"_L1].toDouble();
    QStringList limits;
    if (factor > 0)
        limits += u"\u00D7 "_s + digits(factor);
    if (!limit.isEmpty())
        limits += QString(limit).replace(" us"_L1, u" \u00B5s"_s);
    row.limits = limits.join(", "_L1);

    const bool compares = figure.contains("baseline"_L1);
    const double value = results.value(figure["benchmark"_L1].toString(), measure);
    const double baseline = compares ? results.value(figure["baseline"_L1].toString(), measure) : 1;
    if (!std::isfinite(value) || !std::isfinite(baseline))
        return row;
    row.verdict = limits.isEmpty() ? Verdict::Unlimited : Verdict::Held;
    row.measured = quantity(value, unit);
    row.figure["value"_L1] = value;
    if (!limit.isEmpty() && value * scaleOf(unit) > amount(limit))
        row.verdict = Verdict::Over;
    if (compares) {
        const double ratio = value / baseline;
        row.baseline = named(figure, "against"_L1, "baseline"_L1) + ": "_L1 + quantity(baseline, unit);
        row.ratioText = QString::number(ratio, 'f', 2);
        row.figure["baselineValue"_L1] = baseline;
        row.figure["ratio"_L1] = ratio;
        if (factor > 0 && ratio > factor)
            row.verdict = Verdict::Over;
    }
    return row;
}

bool BenchmarkReport::isHeld() const
{
    return !m_rows.isEmpty() && complaints().isEmpty();
}

QStringList BenchmarkReport::complaints() const
{
    QStringList lines;
    for (const Row &row : m_rows) {
        if (row.verdict == Verdict::Missing)
            lines += "missing: "_L1 + named(row.figure, "figure"_L1, "benchmark"_L1);
        else if (row.verdict == Verdict::Over)
            lines += "over: %1: %2%3, limit %4"_L1.arg(
                named(row.figure, "figure"_L1, "benchmark"_L1), row.measured,
                row.ratioText.isEmpty() ? QString() : ", ratio "_L1 + row.ratioText, row.limits);
    }
    return lines;
}

QByteArray BenchmarkReport::toJson() const
{
    QJsonArray figures;
    for (const Row &row : m_rows) {
        QJsonObject figure = row.figure;
        figure["section"_L1] = row.section;
        figure["verdict"_L1] = verdictText(row.verdict).remove('*'_L1);
        figures += figure;
    }
    return QJsonDocument(QJsonObject{{u"circumstances"_s, m_circumstances}, {u"figures"_s, figures}})
        .toJson();
}

QString BenchmarkReport::toMarkdown() const
{
    QString text = u"| What | Measured | Baseline | Ratio | Limit | Verdict |\n|---|---|---|---|---|---|\n"_s;
    QString section;
    for (const Row &row : m_rows) {
        if (row.section != section)
            text += "| **%1** | | | | | |\n"_L1.arg(section = row.section);
        const QStringList cells{named(row.figure, "figure"_L1, "benchmark"_L1),
                                row.measured,
                                row.baseline,
                                row.ratioText,
                                row.limits,
                                verdictText(row.verdict)};
        text += "| "_L1 + cells.join(" | "_L1) + " |\n"_L1;
    }
    return text + '\n'_L1 + m_circumstances + '\n'_L1;
}

QString BenchmarkReport::insertedInto(const QString &document) const
{
    const qsizetype begin = document.indexOf(TableBegin);
    const qsizetype end = document.indexOf(TableEnd);
    if (begin < 0 || end < begin)
        return {};
    return document.left(begin + TableBegin.size()) + '\n'_L1 + toMarkdown() + '\n'_L1 + document.mid(end);
}
