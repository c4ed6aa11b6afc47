#include "framework/common/platform.h"

#include "framework/common/processlist.h"

using namespace Qt::StringLiterals;

QStringList Platform::runningImageNames()
{
    return ProcessList::fromProcFolder(u"/proc"_s);
}
