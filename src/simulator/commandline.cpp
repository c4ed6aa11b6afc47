#include "simulator/commandline.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr double SlowestRate = 1.0;
constexpr double FastestRate = 1000.0;

const QString Description = uR"(A rotating-rod instrument without hardware, on a pseudo-terminal.

It prints "ready PATH" as soon as PATH can be opened as a serial port, and runs
until it is interrupted. Let the application see it by setting
SPINBAR_SERIAL_PORTS=PATH (an absolute path).

A scenario is a text file, one event a line, "#" begins a comment:
  SECONDS LANE on|off         an animal is on the drum (LANE from 1), or is not
  SECONDS power on|off        the motor's power supply
  SECONDS link off [SECONDS]  the line is cut, and comes back after so long
  SECONDS send TEXT           a message out of turn
SECONDS count from the first "statusOn", on the instrument's own clock.)"_s;

struct Options
{
    QCommandLineOption link{
        u"link"_s, u"Symbolic link to the pseudo-terminal (default: a new one in the temporary folder)."_s,
        u"PATH"_s};
    QCommandLineOption serial{
        u"serial"_s,
        u"Serial number (default %1); \"\" or 000000 for an instrument that has none yet."_s.arg(
            InstrumentOptions().serialNumber),
        u"TEXT"_s, InstrumentOptions().serialNumber};
    QCommandLineOption firmware{u"firmware"_s,
                                u"Firmware version (default %1)."_s.arg(InstrumentOptions().firmware),
                                u"TEXT"_s, InstrumentOptions().firmware};
    QCommandLineOption rate{u"rate"_s, u"Times faster than the real instrument, 1 to 1000 (default 1)."_s,
                            u"X"_s, u"1"_s};
    QCommandLineOption seed{u"seed"_s,
                            u"Seed of the animals and the noise, a whole number from 0 on (default 1)."_s,
                            u"N"_s, u"1"_s};
    QCommandLineOption noPower{u"no-power"_s, u"Starts with the motor's power supply off."_s};
    QCommandLineOption scenario{u"scenario"_s, u"What happens and when, instead of animals by chance."_s,
                                u"FILE"_s};
    QCommandLineOption replay{u"replay"_s, u"Sends the lines of a recorded status log."_s, u"STATUS_LOG"_s};
    QCommandLineOption verbose{
        u"verbose"_s, u"Reports commands and answers on standard error, with the instrument's clock."_s};
};

/// Fills in the options; the text is what is wrong with them, empty if nothing is.
QString readInstrument(const QCommandLineParser &parser, const Options &options,
                       InstrumentOptions *instrument)
{
    instrument->serialNumber = parser.value(options.serial);
    instrument->firmware = parser.value(options.firmware);
    instrument->powered = !parser.isSet(options.noPower);
    for (const QString &text : {instrument->serialNumber, instrument->firmware}) {
        if (!Instrument::isGoodText(text))
            return u"a serial number or version is too long or has special characters"_s;
    }
    bool ok = false;
    instrument->seed = parser.value(options.seed).toUInt(&ok);
    if (!ok)
        return u"--seed needs a whole number from 0 to 4294967295, not \"%1\""_s.arg(
            parser.value(options.seed));
    if (parser.isSet(options.scenario)) {
        Scenario::Result result = Scenario::readFile(parser.value(options.scenario));
        instrument->scenario = std::move(result.scenario);
        return result.error;
    }
    return {};
}

QString readOptions(const QCommandLineParser &parser, const Options &options,
                    SimulatedInstrumentOptions *simulated)
{
    if (!parser.positionalArguments().isEmpty())
        return u"unexpected argument \"%1\""_s.arg(parser.positionalArguments().constFirst());
    if (parser.isSet(options.scenario) && parser.isSet(options.replay))
        return u"--scenario and --replay exclude each other"_s;
    bool ok = false;
    simulated->rate = parser.value(options.rate).toDouble(&ok);
    // The negated form also refuses what is not a number.
    if (!ok || !(simulated->rate >= SlowestRate && simulated->rate <= FastestRate))
        return u"--rate needs a number from 1 to 1000, not \"%1\""_s.arg(parser.value(options.rate));
    simulated->linkPath = parser.value(options.link);
    if (!parser.isSet(options.link)) {
        simulated->linkPath =
            QDir::temp().filePath(u"spinbar-simulator-%1"_s.arg(QCoreApplication::applicationPid()));
    } else if (simulated->linkPath.isEmpty()) {
        return u"--link needs a path"_s;
    }
    simulated->replayPath = parser.value(options.replay);
    const QFileInfo replay(simulated->replayPath);
    if (parser.isSet(options.replay) && (!replay.isReadable() || replay.isDir()))
        return u"%1: cannot be read"_s.arg(simulated->replayPath);
    return readInstrument(parser, options, &simulated->instrument);
}

} // namespace

CommandLine CommandLine::parse(const QStringList &arguments)
{
    const Options options;
    QCommandLineParser parser;
    parser.setApplicationDescription(Description);
    // Not the parser's own help option, which brings a second one about the toolkit's options.
    const QCommandLineOption help({u"h"_s, u"help"_s}, u"Shows this help."_s);
    const QCommandLineOption version = parser.addVersionOption();
    parser.addOptions({help, options.link, options.serial, options.firmware, options.rate, options.seed,
                       options.noPower, options.scenario, options.replay, options.verbose});
    CommandLine line;
    if (!parser.parse(arguments)) {
        line.request = Request::Refuse;
        line.text = parser.errorText();
    } else if (parser.isSet(help)) {
        line.request = Request::ShowText;
        line.text = parser.helpText();
    } else if (parser.isSet(version)) {
        line.request = Request::ShowText;
        line.text =
            u"%1 %2\n"_s.arg(QCoreApplication::applicationName(), QCoreApplication::applicationVersion());
    } else {
        line.text = readOptions(parser, options, &line.options);
        line.request = line.text.isEmpty() ? Request::Run : Request::Refuse;
        line.verbose = parser.isSet(options.verbose);
    }
    return line;
}
