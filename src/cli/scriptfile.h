#pragma once

#include <QString>

/// Why \a path can't be read as a speed script; empty if it can. The application takes what it can from a
/// broken file without a word.
QString scriptFileFault(const QString &path);
