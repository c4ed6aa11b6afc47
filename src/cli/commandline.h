#pragma once

#include "cli/command.h"

/// Runs what \a arguments ask for, the program's own name first; sets the folders of \a context.
ExitCode runCommandLine(const QStringList &arguments, CommandContext &context);
