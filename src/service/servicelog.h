#pragma once

#include <QLoggingCategory>

/// "spinbar.service": firmware bundles, outside tools and what is written to instruments.
Q_DECLARE_LOGGING_CATEGORY(serviceLog)
