#pragma once

#include <QLoggingCategory>

/// "spinbar.tables": tables that could not be written.
Q_DECLARE_LOGGING_CATEGORY(tablesLog)
