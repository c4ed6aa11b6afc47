#pragma once

#include "simulator/instrument.h"

#include <QString>

class SimulatedInstrument;

/// The lines of the verbose report: a word, the instrument's clock in decimal milliseconds, the text.
namespace Report {

/// "command", "ignored", or nothing at all for the keep-alive.
QString commandLine(const QString &command, Instrument::Outcome outcome, qint64 clockMs);

/// Writes what \a instrument hears and answers, and what becomes of its line, to standard error.
void follow(const SimulatedInstrument &instrument);

} // namespace Report
