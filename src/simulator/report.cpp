#include "simulator/report.h"

#include "simulator/printable.h"
#include "simulator/simulatedinstrument.h"

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

QString line(QStringView word, qint64 clockMs, const QString &text)
{
    return u"%1 %2 %3"_s.arg(word.toString(), QString::number(clockMs), printable(text));
}

/// Nothing at all for the keep-alive, which would drown the rest.
QString commandLine(const QString &command, Instrument::Outcome outcome, qint64 clockMs)
{
    switch (outcome) {
    case Instrument::Outcome::Obeyed:
        return line(u"command", clockMs, command);
    case Instrument::Outcome::Ignored:
        return line(u"ignored", clockMs, command);
    case Instrument::Outcome::Swallowed:
        break;
    }
    return {};
}

void print(const QString &line)
{
    // Standard error has no buffer: each line is out before the next message is looked at.
    if (!line.isEmpty())
        std::fputs((line + u'\n').toUtf8().constData(), stderr);
}

} // namespace

void Report::follow(const SimulatedInstrument &instrument)
{
    const auto *context = &instrument;
    QObject::connect(context, &SimulatedInstrument::commandReceived, context,
                     [](const QString &command, Instrument::Outcome outcome, qint64 clockMs) {
                         print(commandLine(command, outcome, clockMs));
                     });
    QObject::connect(context, &SimulatedInstrument::answered, context,
                     [](const QString &answer, qint64 clockMs) { print(line(u"answer", clockMs, answer)); });
    QObject::connect(context, &SimulatedInstrument::linkChanged, context,
                     [](bool up, qint64 clockMs) { print(line(u"link", clockMs, up ? u"on"_s : u"off"_s)); });
}
