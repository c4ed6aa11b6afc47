#pragma once

#include <QLoggingCategory>

/// "spinbar.records": files of experiments that could not be read, written, renamed or removed.
Q_DECLARE_LOGGING_CATEGORY(recordsLog)
