#include "framework/common/tableslog.h"

Q_LOGGING_CATEGORY(tablesLog, "spinbar.tables")
