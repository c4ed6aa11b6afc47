#include "cli/clitext.h"
#include "cli/command.h"
#include "cli/recordsession.h"
#include "cli/scriptfile.h"
#include "core/sensorcalibration.h"
#include "core/spinbarmodel.h"
#include "core/spinbarsettings.h"
#include "device/speedconversion.h"
#include "framework/common/terminationsignals.h"
#include "scripts/scriptlibrary.h"
#include "scripts/speedscript.h"

#include <QCommandLineParser>
#include <QEventLoop>
#include <QFileInfo>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

// Above the last digits that a conversion from and to the operator's unit may cost.
constexpr double SpeedTolerance = 1e-9;

ExitCode record(CommandContext &context, const RecordOptions &options)
{
    std::unique_ptr<SpeedScript> script;
    if (!options.scriptTitle.isEmpty()) {
        const ScriptLibrary library(context.scriptsFolder());
        script = library.load(options.scriptTitle);
        if (!script)
            return failed(context, Cli::tr("'%1': no such script").arg(options.scriptTitle));
        const QString path = library.findFile(options.scriptTitle);
        if (const QString fault = scriptFileFault(path); !fault.isEmpty())
            return failed(context, u"'%1': %2"_s.arg(path, fault));
    }
    SpinbarModel model(nullptr, context.dataFolder);
    if (!QFileInfo(model.recordsFolder()).isDir())
        return failed(context, Cli::tr("'%1': the folder cannot be created").arg(model.recordsFolder()));
    const auto rodent = options.rodent.value_or(model.settings()->getRodentMode());
    if (options.motorSpeed(rodent) > SpeedConversion::MaxMotorSpeed + SpeedTolerance)
        return wrongUsage(context, Cli::tr("--speed is above what the drum can do"));
    model.device()->setRodentMode(rodent);
    if (!SensorCalibration::apply(*model.settings(), *model.device()))
        context.err << Cli::tr("The sensors are not calibrated, default thresholds are in force") << Qt::endl;

    RecordReport report(context, options.json);
    RecordSession session(model, options, context, report);
    const TerminationSignals termination;
    QObject::connect(&termination, &TerminationSignals::requested, &session, &RecordSession::interrupt);
    ExitCode result = ExitCode::Failed;
    QEventLoop loop;
    QObject::connect(&session, &RecordSession::finished, &loop, [&](ExitCode code) {
        result = code;
        loop.quit();
    });
    session.start(script.get());
    loop.exec();
    return result;
}

} // namespace

ExitCode runRecord(CommandContext &context, const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Waits for the instrument and records an experiment."_s);
    RecordOptions::declare(parser);
    if (const auto ended = parseArguments(parser, context, u"record"_s, arguments))
        return *ended;
    if (!parser.positionalArguments().isEmpty())
        return wrongUsage(context, Cli::tr("'record' takes options only"));
    QString error;
    const std::optional<RecordOptions> options = RecordOptions::read(parser, error);
    return options ? record(context, *options) : wrongUsage(context, error);
}
