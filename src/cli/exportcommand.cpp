#include "cli/clitext.h"
#include "cli/command.h"
#include "cli/experimentarguments.h"
#include "cli/optionreader.h"
#include "core/experimentexport.h"

#include <QCommandLineParser>
#include <QFileInfo>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array formats{ExperimentExport::Format::Csv, ExperimentExport::Format::Workbook};

} // namespace

ExitCode runExport(CommandContext &context, const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Writes experiments to a workbook or a CSV file."_s);
    parser.addOptions({
        {u"output"_s, u"The file to write."_s, u"FILE"_s},
        {u"format"_s, u"csv or xlsx; without it the suffix of FILE decides."_s, u"FORMAT"_s},
    });
    parser.addPositionalArgument(u"EXPERIMENT"_s, u"Folder, experiment.json, or name under Records/."_s,
                                 u"EXPERIMENT..."_s);
    if (const auto ended = parseArguments(parser, context, u"export"_s, arguments))
        return *ended;
    OptionReader reader(parser);
    const QString path = parser.value(u"output"_s);
    const QStringList formatNames{u"csv"_s, u"xlsx"_s}; // in the order of "formats"
    const auto asked = reader.choice(u"format"_s, formatNames);
    const qsizetype format = asked.value_or(formatNames.indexOf(QFileInfo(path).suffix().toLower()));
    if (path.isEmpty())
        reader.fault(Cli::tr("'export' needs --output"));
    if (format < 0)
        reader.fault(Cli::tr("'%1' names no format, use --format").arg(path));
    if (parser.positionalArguments().isEmpty())
        reader.fault(Cli::tr("'export' needs an experiment"));
    if (!reader.error().isEmpty())
        return wrongUsage(context, reader.error());
    const Records records = loadExperiments(context, parser.positionalArguments());
    if (records.empty())
        return ExitCode::Failed;
    if (!ExperimentExport::write(borrowed(records), path, formats.at(std::size_t(format))))
        return failed(context, Cli::tr("'%1': cannot be written").arg(path));
    return ExitCode::Done;
}
