#include "cli/clitext.h"
#include "cli/command.h"
#include "cli/scriptfile.h"
#include "cli/tableoutput.h"
#include "scripts/scriptexpansion.h"
#include "scripts/speedscript.h"

#include <QCommandLineParser>
#include <QJsonObject>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

constexpr double MillisecondsPerSecond = 1000.0;

QJsonObject toJson(const SpeedScript &script)
{
    QJsonArray points;
    for (const ScriptPoint &point : script.pointList())
        points.append(QJsonArray{point.timeSeconds, point.speed});
    QJsonArray table;
    for (const double speed : script.table())
        table.append(speed);
    return {{u"duration"_s, script.getDurationSeconds()},
            {u"infinite"_s, script.getInfinite()},
            {u"loops"_s, script.getLoops()},
            {u"points"_s, points},
            {u"table"_s, table}};
}

Table toTable(const SpeedScript &script)
{
    Table rows{{Cli::tr("Time, s"), Cli::tr("Speed")}};
    const QList<double> speeds = script.table();
    for (qsizetype i = 0; i < speeds.size(); ++i)
        rows.append({double((i + 1) * ScriptStepMs) / MillisecondsPerSecond, speeds.at(i)});
    return rows;
}

} // namespace

ExitCode runScript(CommandContext &context, const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Shows a speed script and the speeds that it expands to."_s);
    const QCommandLineOption json(u"json"_s, u"Prints JSON."_s);
    parser.addOption(json);
    parser.addPositionalArgument(u"FILE"_s, u"A speed script file."_s);
    if (const auto ended = parseArguments(parser, context, u"script"_s, arguments))
        return *ended;
    if (parser.positionalArguments().size() != 1)
        return wrongUsage(context, Cli::tr("'script' takes one file"));
    const QString path = parser.positionalArguments().constFirst();
    if (const QString fault = scriptFileFault(path); !fault.isEmpty())
        return failed(context, u"'%1': %2"_s.arg(path, fault));
    SpeedScript script(path);
    script.setAutoSave(false);
    script.reload();
    script.parsePoints();
    if (parser.isSet(json)) {
        printJson(context.out, toJson(script));
        return ExitCode::Done;
    }
    const QString seconds = QString::number(script.getDurationSeconds());
    context.out << (script.getInfinite()
                        ? Cli::tr("Duration %1 s, endless").arg(seconds)
                        : Cli::tr("Duration %1 s, %2 loops").arg(seconds).arg(script.getLoops()))
                << "\n\n";
    printTable(context.out, toTable(script));
    return ExitCode::Done;
}
