#include "cli/clitext.h"
#include "cli/command.h"
#include "cli/experimentarguments.h"
#include "cli/tableoutput.h"

#include <QCommandLineParser>
#include <QJsonObject>

using namespace Qt::StringLiterals;

ExitCode runTable(CommandContext &context, const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Prints the table of one experiment or the summary of several."_s);
    const QCommandLineOption longForm(u"long"_s, u"Adds descriptions to the rows of statistics."_s);
    const QCommandLineOption json(u"json"_s, u"Prints JSON."_s);
    parser.addOptions({longForm, json});
    parser.addPositionalArgument(u"EXPERIMENT"_s, u"Folder, experiment.json, or name under Records/."_s,
                                 u"EXPERIMENT..."_s);
    if (const auto ended = parseArguments(parser, context, u"table"_s, arguments))
        return *ended;
    const QStringList words = parser.positionalArguments();
    if (words.isEmpty())
        return wrongUsage(context, Cli::tr("'table' needs an experiment"));
    const Records records = loadExperiments(context, words);
    if (records.empty())
        return ExitCode::Failed;
    const bool brief = !parser.isSet(longForm);
    const Table table = records.size() == 1 ? records.front()->experimentTable(brief)
                                            : SpinbarRecord::summaryTable(borrowed(records), brief);
    if (parser.isSet(json))
        printJson(context.out, QJsonObject{{u"rows"_s, tableToJson(table)}});
    else
        printTable(context.out, table);
    return ExitCode::Done;
}
