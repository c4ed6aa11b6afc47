#include "cli/commandline.h"
#include "cli/clitext.h"

#include "cli/command.h"
#include "framework/common/fileutilities.h"
#include "framework/settings/languagecontext.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QStandardPaths>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array commands{
    Command{"ports", "Lists the serial ports and whether the link would try each.", runPorts},
    Command{"record", "Waits for the instrument and records an experiment.", runRecord},
    Command{"list", "Lists the recorded experiments.", runList},
    Command{"table", "Prints the table of one experiment or the summary of several.", runTable},
    Command{"export", "Writes experiments to a workbook or a CSV file.", runExport},
    Command{"script", "Shows a speed script and the speeds that it expands to.", runScript},
    Command{"replay", "Runs presence and fall detection anew over a recorded status log.", runReplay},
};

const QString defaultLanguage = u"en_US"_s;

QString helpText(const QCommandLineParser &parser)
{
    QString text = parser.helpText() + "\nCommands:\n"_L1;
    for (const Command &command : commands)
        text +=
            u"  %1 %2\n"_s.arg(QLatin1StringView(command.name), -8).arg(QLatin1StringView(command.summary));
    return text + "\n'spinbar-cli COMMAND --help' tells the options of a command.\n"_L1;
}

ExitCode runCommand(CommandContext &context, const QStringList &words)
{
    if (words.isEmpty())
        return wrongUsage(context, Cli::tr("no command given, see --help"));
    for (const Command &command : commands) {
        if (words.first() == QLatin1StringView(command.name))
            return command.run(context, words.sliced(1));
    }
    return wrongUsage(context, Cli::tr("unknown command '%1', see --help").arg(words.first()));
}

} // namespace

ExitCode runCommandLine(const QStringList &arguments, CommandContext &context)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"The work of the rotating-rod instrument's application without a window."_s);
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    const QCommandLineOption data(u"data"_s, u"Takes the place of the data folder."_s, u"DIR"_s);
    const QCommandLineOption language(u"language"_s,
                                      u"Language of tables, sheets and messages: en_US or ru_RU."_s,
                                      u"NAME"_s, defaultLanguage);
    const QCommandLineOption help({u"h"_s, u"help"_s}, u"Shows this help."_s);
    const QCommandLineOption version({u"v"_s, u"version"_s}, u"Shows the version."_s);
    parser.addOptions({data, language, help, version});
    parser.addPositionalArgument(u"COMMAND"_s, u"What to do."_s, u"COMMAND ..."_s);
    if (!parser.parse(arguments))
        return wrongUsage(context, parser.errorText());
    if (parser.isSet(help)) {
        context.out << helpText(parser);
        return ExitCode::Done;
    }
    if (parser.isSet(version)) {
        context.out << "spinbar-cli " << QCoreApplication::applicationVersion() << '\n';
        return ExitCode::Done;
    }
    if (!LanguageContext::hasLanguage(parser.value(language)))
        return wrongUsage(context, Cli::tr("unknown language '%1'").arg(parser.value(language)));
    LanguageContext::setLanguage(parser.value(language));
    if (parser.isSet(data) && parser.value(data).isEmpty())
        return wrongUsage(context, Cli::tr("--data needs a folder"));
    const QString folder = parser.isSet(data)
                               ? parser.value(data)
                               : QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    context.dataFolder = FileUtilities::FolderSlash(folder);
    return runCommand(context, parser.positionalArguments());
}
