#pragma once

#include <QCoreApplication>

/// Translates the messages and headings of the command line program.
struct Cli
{
    Q_DECLARE_TR_FUNCTIONS(Cli)
};
