#include "cli/clitext.h"
#include "cli/command.h"
#include "cli/tableoutput.h"
#include "core/experimentlibrary.h"

#include <QCommandLineParser>
#include <QDateTime>
#include <QDir>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

QString folderPath(const ExperimentEntry &entry)
{
    return QDir::cleanPath(QDir(entry.folder).absolutePath());
}

QJsonArray toJson(const QList<ExperimentEntry> &entries)
{
    QJsonArray array;
    for (const ExperimentEntry &entry : entries) {
        array.append(QJsonObject{{u"name"_s, entry.name},
                                 {u"path"_s, folderPath(entry)},
                                 {u"timestamp"_s, entry.timestamp},
                                 {u"rat"_s, entry.rat},
                                 {u"title"_s, entry.title},
                                 {u"comment"_s, entry.comment},
                                 {u"items"_s, entry.items}});
    }
    return array;
}

Table toTable(const QList<ExperimentEntry> &entries)
{
    Table table{{Cli::tr("Name"), Cli::tr("Date"), Cli::tr("Rodent"), Cli::tr("Title"), Cli::tr("Comment"),
                 Cli::tr("N")}};
    for (const ExperimentEntry &entry : entries) {
        const QDateTime when = QDateTime::fromMSecsSinceEpoch(entry.timestamp);
        table.append({entry.name, when.toString(u"yyyy-MM-dd hh:mm"_s),
                      entry.rat ? Cli::tr("rat") : Cli::tr("mouse"), entry.title, entry.comment,
                      entry.items});
    }
    return table;
}

} // namespace

ExitCode runList(CommandContext &context, const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Lists the recorded experiments."_s);
    const QCommandLineOption json(u"json"_s, u"Prints JSON."_s);
    parser.addOption(json);
    if (const auto ended = parseArguments(parser, context, u"list"_s, arguments))
        return *ended;
    if (!parser.positionalArguments().isEmpty())
        return wrongUsage(context, Cli::tr("'list' takes no further words"));
    const QList<ExperimentEntry> entries = ExperimentLibrary(context.recordsFolder()).list();
    if (parser.isSet(json))
        printJson(context.out, toJson(entries));
    else
        printTable(context.out, toTable(entries));
    return ExitCode::Done;
}
