#pragma once

#include <QString>
#include <QStringList>
#include <QTextStream>

#include <optional>

class QCommandLineParser;

/// The exit codes of every command.
enum class ExitCode { Done = 0, Failed = 1, WrongUsage = 2, NoInstrument = 3, LinkLost = 4 };

/// What every command works with: results go to `out`, progress and messages to `err`.
struct CommandContext
{
    QString dataFolder; ///< Ends with "/".
    QTextStream &out;
    QTextStream &err;

    QString recordsFolder() const;
    QString scriptsFolder() const;
};

/// One word of the command line and what it does with the words behind it.
struct Command
{
    const char *name;
    const char *summary;
    ExitCode (*run)(CommandContext &context, const QStringList &arguments);
};

ExitCode runExport(CommandContext &context, const QStringList &arguments);
ExitCode runList(CommandContext &context, const QStringList &arguments);
ExitCode runPorts(CommandContext &context, const QStringList &arguments);
ExitCode runRecord(CommandContext &context, const QStringList &arguments);
ExitCode runReplay(CommandContext &context, const QStringList &arguments);
ExitCode runScript(CommandContext &context, const QStringList &arguments);
ExitCode runTable(CommandContext &context, const QStringList &arguments);

/// Parses \a arguments for the command \a name. A value tells that the command ends with it: the usage was
/// wrong, which has been said, or help was asked for and given.
std::optional<ExitCode> parseArguments(QCommandLineParser &parser, CommandContext &context,
                                       const QString &name, const QStringList &arguments);

ExitCode wrongUsage(CommandContext &context, const QString &message);
ExitCode failed(CommandContext &context, const QString &message);
