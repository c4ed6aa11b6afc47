#include "cli/clitext.h"
#include "cli/command.h"
#include "cli/optionreader.h"
#include "cli/tableoutput.h"
#include "core/detectionreplay.h"
#include "core/spinbarsettings.h"
#include "device/instrumentstatus.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

constexpr int LowestThreshold = 1;
constexpr int HighestThreshold = 49;
constexpr double MaxTrailSeconds = 100;

double defaultTrailSeconds()
{
    // A settings object without a file holds the defaults.
    return SpinbarSettings({}, nullptr).getMaxTrailDetectionSeconds();
}

QList<int> readThresholds(const QString &text, qsizetype lanes, OptionReader &reader)
{
    QList<int> thresholds;
    const QStringList parts = text.split(';'_L1);
    for (const QString &part : parts) {
        bool ok = false;
        const int value = part.toInt(&ok);
        if (ok && value >= LowestThreshold && value <= HighestThreshold)
            thresholds.append(value);
    }
    if (thresholds.size() != lanes || parts.size() != lanes) {
        reader.fault(Cli::tr("--thresholds takes %1 numbers from %2 to %3, separated by ';'")
                         .arg(lanes)
                         .arg(LowestThreshold)
                         .arg(HighestThreshold));
    }
    return thresholds;
}

DetectionReplay::Options readOptions(const QCommandLineParser &parser, OptionReader &reader)
{
    DetectionReplay::Options options;
    options.mice = reader.choice(u"rodent"_s, {u"rats"_s, u"mice"_s}) == 1;
    const int lanes = options.mice ? InstrumentStatus::MouseLanes : InstrumentStatus::RatLanes;
    if (parser.isSet(u"thresholds"_s))
        options.thresholds = readThresholds(parser.value(u"thresholds"_s), lanes, reader);
    options.trailSeconds = reader.number(u"trail"_s, 0, MaxTrailSeconds).value_or(defaultTrailSeconds());
    return options;
}

Table table(const QList<ExperimentItem> &items)
{
    Table rows{
        {Cli::tr("Lane"), Cli::tr("Start, ms"), Cli::tr("End, ms"), Cli::tr("Rotations"), Cli::tr("Rodent")}};
    for (const ExperimentItem &item : items)
        rows.append({item.index + 1, item.start, item.end, item.rotations,
                     item.rat ? Cli::tr("rat") : Cli::tr("mouse")});
    return rows;
}

QJsonArray toJson(const QList<ExperimentItem> &items)
{
    QJsonArray array;
    for (const ExperimentItem &item : items) {
        array.append(QJsonObject{{u"start"_s, item.start},
                                 {u"end"_s, item.end},
                                 {u"rotations"_s, item.rotations},
                                 {u"index"_s, item.index},
                                 {u"rat"_s, item.rat}});
    }
    return array;
}

} // namespace

ExitCode runReplay(CommandContext &context, const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Runs presence and fall detection anew over a recorded status log."_s);
    parser.addOptions({
        {u"rodent"_s, u"rats or mice (rats)."_s, u"MODE"_s, u"rats"_s},
        {u"thresholds"_s, u"Thresholds of the lanes, 1 to 49, separated by ';'."_s, u"A;B;..."_s},
        {u"trail"_s, u"Seconds without cover that end a stay (2)."_s, u"S"_s},
        {u"json"_s, u"Prints JSON."_s},
    });
    parser.addPositionalArgument(u"STATUS_LOG"_s, u"A status.log."_s);
    if (const auto ended = parseArguments(parser, context, u"replay"_s, arguments))
        return *ended;
    OptionReader reader(parser);
    const DetectionReplay::Options options = readOptions(parser, reader);
    if (parser.positionalArguments().size() != 1)
        reader.fault(Cli::tr("'replay' takes one status log"));
    if (!reader.error().isEmpty())
        return wrongUsage(context, reader.error());
    const QString path = parser.positionalArguments().constFirst();
    if (!QFileInfo(path).isFile())
        return failed(context, Cli::tr("'%1': no such file").arg(path));
    const auto items = DetectionReplay::run(path, options);
    if (!items)
        return failed(context, Cli::tr("'%1': cannot be read").arg(path));
    if (parser.isSet(u"json"_s))
        printJson(context.out, toJson(*items));
    else
        printTable(context.out, table(*items));
    return ExitCode::Done;
}
