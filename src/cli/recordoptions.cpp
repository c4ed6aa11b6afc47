#include "cli/recordoptions.h"
#include "cli/clitext.h"

#include "cli/optionreader.h"

#include <QCommandLineParser>

#include <array>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

// In the order of their names in read().
constexpr std::array rodentModes{CurlySpinbarDevice::Rats, CurlySpinbarDevice::Mice};
constexpr std::array units{CurlySpinbar::Speed_RotationsPerSecond, CurlySpinbar::Speed_RotationsPerMinute,
                           CurlySpinbar::Speed_MetersPerSecond, CurlySpinbar::Speed_CentimetersPerSecond,
                           CurlySpinbar::Speed_KilometersPerHour};

} // namespace

void RecordOptions::declare(QCommandLineParser &parser)
{
    parser.addOptions({
        {u"wait"_s, u"Seconds to wait for the instrument (30)."_s, u"S"_s, u"30"_s},
        {u"duration"_s, u"Seconds to record; without it until the interrupt signal."_s, u"S"_s},
        {u"script"_s, u"Title of the speed script that drives the drum."_s, u"TITLE"_s},
        {u"rodent"_s, u"rats or mice; without it as the settings say."_s, u"MODE"_s},
        {u"speed"_s, u"Constant speed of the drum, with --unit."_s, u"V"_s},
        {u"unit"_s, u"rps, rpm, m/s, cm/s or km/h."_s, u"UNIT"_s},
        {u"title"_s, u"Title of the experiment."_s, u"T"_s},
        {u"comment"_s, u"Comment of the experiment."_s, u"C"_s},
        {u"json"_s, u"Prints what happens as JSON, one object a line."_s},
    });
}

std::optional<RecordOptions> RecordOptions::read(const QCommandLineParser &parser, QString &error)
{
    OptionReader reader(parser);
    RecordOptions options;
    options.wait = reader.seconds(u"wait"_s).value_or(std::chrono::milliseconds::zero());
    options.duration = reader.seconds(u"duration"_s);
    if (const auto rodent = reader.choice(u"rodent"_s, {u"rats"_s, u"mice"_s}))
        options.rodent = rodentModes.at(std::size_t(*rodent));
    options.speed = reader.number(u"speed"_s, 0, std::numeric_limits<double>::max());
    if (const auto unit = reader.choice(u"unit"_s, {u"rps"_s, u"rpm"_s, u"m/s"_s, u"cm/s"_s, u"km/h"_s}))
        options.unit = units.at(std::size_t(*unit));
    if (parser.isSet(u"speed"_s) != parser.isSet(u"unit"_s))
        reader.fault(Cli::tr("--speed and --unit go together"));
    if (parser.isSet(u"script"_s) && options.speed)
        reader.fault(Cli::tr("--script and --speed exclude each other"));
    if (parser.isSet(u"script"_s) && parser.value(u"script"_s).isEmpty())
        reader.fault(Cli::tr("--script needs a title"));
    options.scriptTitle = parser.value(u"script"_s);
    options.title = parser.value(u"title"_s);
    options.comment = parser.value(u"comment"_s);
    options.json = parser.isSet(u"json"_s);
    error = reader.error();
    return error.isEmpty() ? std::optional(options) : std::nullopt;
}

double RecordOptions::motorSpeed(CurlySpinbarDevice::RodentMode mode) const
{
    return CurlySpinbar::convertSpeed(speed.value_or(0), unit, CurlySpinbar::Speed_Motor_RotationsPerSecond,
                                      mode == CurlySpinbarDevice::Mice);
}
