#include "cli/optionreader.h"
#include "cli/clitext.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double MaxSeconds = 7 * 24 * 3600.0;

} // namespace

OptionReader::OptionReader(const QCommandLineParser &parser)
    : m_parser(parser)
{}

std::optional<double> OptionReader::number(const QString &name, double lowest, double highest)
{
    if (m_parser.values(name).isEmpty())
        return std::nullopt;
    bool ok = false;
    const double value = m_parser.value(name).toDouble(&ok);
    if (ok && std::isfinite(value) && value >= lowest && value <= highest)
        return value;
    fault(Cli::tr("--%1 takes a number from %2 to %3").arg(name).arg(lowest).arg(highest));
    return std::nullopt;
}

std::optional<std::chrono::milliseconds> OptionReader::seconds(const QString &name)
{
    const std::optional<double> value = number(name, 0, MaxSeconds);
    if (!value)
        return std::nullopt;
    return std::chrono::round<std::chrono::milliseconds>(std::chrono::duration<double>(*value));
}

std::optional<qsizetype> OptionReader::choice(const QString &name, const QStringList &choices)
{
    if (m_parser.values(name).isEmpty())
        return std::nullopt;
    const qsizetype index = choices.indexOf(m_parser.value(name));
    if (index >= 0)
        return index;
    fault(Cli::tr("--%1 takes one of %2").arg(name, choices.join(", "_L1)));
    return std::nullopt;
}

void OptionReader::fault(const QString &message)
{
    if (m_error.isEmpty())
        m_error = message;
}

QString OptionReader::error() const
{
    return m_error;
}
