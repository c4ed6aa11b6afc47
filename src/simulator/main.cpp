#include "framework/common/terminationsignals.h"
#include "simulator/commandline.h"
#include "simulator/report.h"
#include "simulator/simulatedinstrument.h"

#include <QCoreApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int ExitFailed = 1;
constexpr int ExitWrongUsage = 2;

void say(std::FILE *stream, const QString &text)
{
    std::fputs(text.toLocal8Bit().constData(), stream);
    std::fflush(stream);
}

void complain(const QString &text)
{
    say(stderr, u"spinbar-simulator: %1\n"_s.arg(text));
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"spinbar-simulator"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(SPINBAR_VERSION));

    const CommandLine line = CommandLine::parse(QCoreApplication::arguments());
    if (line.request == CommandLine::Request::ShowText) {
        say(stdout, line.text);
        return 0;
    }
    if (line.request == CommandLine::Request::Refuse) {
        complain(line.text);
        return ExitWrongUsage;
    }

    // Ahead of the link, so that nothing can end the program in between and leave it behind.
    TerminationSignals termination;
    QObject::connect(&termination, &TerminationSignals::requested, &application, &QCoreApplication::quit);
    SimulatedInstrument instrument(line.options);
    QObject::connect(&instrument, &SimulatedInstrument::linkFailed, &application, complain);
    QObject::connect(
        &instrument, &SimulatedInstrument::replayEnded, &application, [](qint64 messages, qint64 skipped) {
            complain(u"end of the replay: %1 messages, %2 lines passed over"_s.arg(messages).arg(skipped));
        });
    if (line.verbose)
        Report::follow(instrument);
    if (!instrument.start()) {
        complain(instrument.errorString());
        return ExitFailed;
    }
    say(stdout, u"ready %1\n"_s.arg(line.options.linkPath));
    return QCoreApplication::exec();
}
