#include "service/servicelog.h"

Q_LOGGING_CATEGORY(serviceLog, "spinbar.service")
