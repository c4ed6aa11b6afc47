#pragma once

#include "core/statuscounters.h"

#include <QStringView>

#include <optional>

/// The two fields of a status line that mean something later: the last is the device time, the last but one
/// the rotation counter, both hexadecimal.
namespace StatusLine {

/// Of a comma separated message with 5 fields or more; a field that is no number reads as 0.
std::optional<StatusSample> sampleOfMessage(QStringView message);

/// True if the line of "status.log" has 8 fields or more and the last is a number. \a cutSeparators stood in
/// a part of the line that is not there any more.
bool readStoredLine(const char *begin, const char *end, qint64 cutSeparators, StatusSample &sample);

} // namespace StatusLine
