#pragma once

#include <QString>

/// Recordings of any length for the benchmarks, the same at every run.
namespace BenchData {

/// Status lines of one day at five a second.
inline constexpr int LinesPerDay = 24 * 3600 * 5;
inline constexpr int LinesPerHour = LinesPerDay / 24;
inline constexpr int StatusPeriodMs = 200;
inline constexpr int LanesOfRats = 4;
inline constexpr int LanesOfMice = 7;

/// One line of a "status.log" without its end; \a line counts from 0.
QByteArray statusLine(int line, int lanes = LanesOfRats);

bool writeStatusLog(const QString &path, int lines);

/// An "experiment.json" with \a rows stays spread evenly over \a lines status lines.
bool writeExperiment(const QString &folder, int rows, int lines);

/// \a count experiment folders under \a recordsFolder, each with \a rows rows and no log.
bool writeExperiments(const QString &recordsFolder, int count, int rows);

/// The same with a log of \a lines status lines each.
bool writeRecordings(const QString &recordsFolder, int count, int rows, int lines);

} // namespace BenchData
