#include "device/linklog.h"

Q_LOGGING_CATEGORY(lcLink, "spinbar.link")
Q_LOGGING_CATEGORY(lcLinkBytes, "spinbar.link.bytes", QtInfoMsg)
