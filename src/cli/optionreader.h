#pragma once

#include <QCommandLineParser>
#include <QString>

#include <chrono>
#include <optional>

/// Reads the values of a command's options. The first fault found stands in error().
class OptionReader
{
public:
    explicit OptionReader(const QCommandLineParser &parser);

    /// None if the option is not given and has no default, or is no finite number in the range.
    std::optional<double> number(const QString &name, double lowest, double highest);
    std::optional<std::chrono::milliseconds> seconds(const QString &name);
    /// The index of the value among \a choices.
    std::optional<qsizetype> choice(const QString &name, const QStringList &choices);

    void fault(const QString &message);
    QString error() const;

private:
    const QCommandLineParser &m_parser;
    QString m_error;
};
