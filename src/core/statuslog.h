#pragma once

#include "core/statuscounters.h"

#include <QFile>
#include <QString>

/// "status.log": one line per status message, its fields joined by ";", in order.
namespace StatusLog {

/// Replaces \a counters by those of the file; lines of fewer than 8 fields or without a time are skipped.
/// False, with \a counters untouched, if it can't be opened. Reads in pieces, so neither the file's size nor
/// the length of a line costs memory.
bool read(const QString &path, StatusCounters &counters);

/// Appends lines to a new log. Unbuffered, one write call a line: a killed process loses at most the line
/// in flight.
class Writer
{
public:
    /// Empties the file. False, with a line in the log, if it can't be opened.
    bool open(const QString &path);
    void close();
    bool isOpen() const { return m_file.isOpen(); }

    /// Writes \a message with ";" for "," and "\r\n" behind it.
    void append(const QString &message);

    /// The first failure since open(), with the file's name; empty if every line is in the file.
    QString error() const { return m_error; }

private:
    void noteFailure();

    QFile m_file;
    QString m_error;
    qint64 m_wholeLinesBytes = 0;
    bool m_failing = false;
};

} // namespace StatusLog
