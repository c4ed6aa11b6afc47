#pragma once

#include "cli/command.h"
#include "core/spinbarrecord.h"

#include <memory>
#include <vector>

using Records = std::vector<std::unique_ptr<SpinbarRecord>>;

/// The experiments that \a words name, loaded, in the same order: each an experiment's folder, its
/// "experiment.json", or a name under the records folder. Empty, with a message, if one does not exist.
Records loadExperiments(CommandContext &context, const QStringList &words);

QList<SpinbarRecord *> borrowed(const Records &records);
