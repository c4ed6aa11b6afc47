#include "scripts/scriptpoints.h"

#include <QStringList>
#include <QStringTokenizer>

#include <array>
#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr int TimeDecimals = 3;
constexpr int SpeedDecimals = 2;

std::optional<double> finiteNumber(QStringView text)
{
    bool ok = false;
    const double number = text.toDouble(&ok);
    return ok && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

std::optional<ScriptPoint> parsePoint(QStringView line)
{
    std::array<QStringView, 2> parts;
    std::size_t count = 0;
    for (const QStringView part : line.tokenize(u':', Qt::SkipEmptyParts)) {
        if (count == parts.size())
            return {};
        parts[count++] = part;
    }
    if (count != parts.size())
        return {};
    const auto time = finiteNumber(parts[0]);
    const auto speed = finiteNumber(parts[1]);
    return time && speed ? std::optional(ScriptPoint{*time, *speed}) : std::nullopt;
}

} // namespace

ScriptPoints parseScriptPoints(const QString &text)
{
    ScriptPoints points;
    for (const QStringView line : QStringView(text).tokenize(u'\n', Qt::SkipEmptyParts)) {
        if (const auto point = parsePoint(line.trimmed()))
            points.append(*point);
    }
    return points;
}

QString scriptPointsText(const ScriptPoints &points)
{
    QStringList lines;
    lines.reserve(points.size());
    for (const ScriptPoint &point : points) {
        lines.append(QString::number(point.timeSeconds, 'f', TimeDecimals) + ':'_L1
                     + QString::number(point.speed, 'f', SpeedDecimals));
    }
    return lines.join("\r\n"_L1);
}
