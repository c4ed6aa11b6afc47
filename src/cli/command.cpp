#include "cli/command.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

QString CommandContext::recordsFolder() const
{
    return dataFolder + "Records/"_L1;
}

QString CommandContext::scriptsFolder() const
{
    return dataFolder + "Scripts/"_L1;
}

std::optional<ExitCode> parseArguments(QCommandLineParser &parser, CommandContext &context,
                                       const QString &name, const QStringList &arguments)
{
    const QCommandLineOption help({u"h"_s, u"help"_s}, u"Shows this help."_s);
    parser.addOption(help);
    if (!parser.parse(QStringList{"spinbar-cli "_L1 + name} + arguments))
        return wrongUsage(context, parser.errorText());
    if (!parser.isSet(help))
        return std::nullopt;
    context.out << parser.helpText();
    return ExitCode::Done;
}

ExitCode wrongUsage(CommandContext &context, const QString &message)
{
    context.err << "spinbar-cli: " << message << Qt::endl;
    return ExitCode::WrongUsage;
}

ExitCode failed(CommandContext &context, const QString &message)
{
    context.err << "spinbar-cli: " << message << Qt::endl;
    return ExitCode::Failed;
}
