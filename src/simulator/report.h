#pragma once

class SimulatedInstrument;

namespace Report {

/// Writes what \a instrument hears and answers, and what becomes of its line, to standard error: lines of a
/// word, the instrument's clock in decimal milliseconds, and the text.
void follow(const SimulatedInstrument &instrument);

} // namespace Report
