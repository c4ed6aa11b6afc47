#pragma once

#include <QLoggingCategory>

/// What happens on the link.
Q_DECLARE_LOGGING_CATEGORY(lcLink)
/// Every byte that passes; off unless asked for.
Q_DECLARE_LOGGING_CATEGORY(lcLinkBytes)
