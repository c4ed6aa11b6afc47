#include "core/recordslog.h"

Q_LOGGING_CATEGORY(recordsLog, "spinbar.records")
