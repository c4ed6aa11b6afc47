#pragma once

#include "simulator/simulatedinstrument.h"

#include <QStringList>

/// What the program is asked to do by its arguments.
struct CommandLine
{
    enum class Request { Run, ShowText, Refuse };

    Request request = Request::Run;
    /// The help or version, or why the arguments are refused.
    QString text;
    SimulatedInstrumentOptions options;
    bool verbose = false;

    /// Reads the scenario as well, so that nothing opens before all is known to be well.
    static CommandLine parse(const QStringList &arguments);
};
