#pragma once

#include <QtGlobal>

/// What the system tells about this process.
namespace ProcessFigures {

qint64 residentKiB();
int openDescriptors();
/// How long the main thread was ready to run and did not get a processor, since its start.
qint64 waitedForProcessorMs();
/// How long the processors of a virtual machine were kept from it, since its start.
qint64 stolenFromMachineMs();

/// Lets files grow to \a bytes only; writing beyond fails. Negative lifts the limit.
bool limitFileSize(qint64 bytes);

} // namespace ProcessFigures
