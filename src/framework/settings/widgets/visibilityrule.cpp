#include "framework/settings/widgets/visibilityrule.h"

#include "framework/common/texthelper.h"

#include <algorithm>

using namespace Qt::StringLiterals;

bool VisibilityRule::holds(const QString &value, const QString &condition)
{
    const auto partHolds = [&value](const QString &part) {
        return part.startsWith('!'_L1) ? value != part.sliced(1) : value == part;
    };
    const bool isAlternative = condition.indexOf('|'_L1) >= 1;
    const QStringList parts =
        TextHelper::multisplit(condition, {u"|"_s, u"&&"_s}, TextHelper::SkipEmptyParts());
    if (parts.isEmpty())
        return partHolds({});
    return isAlternative ? std::any_of(parts.begin(), parts.end(), partHolds)
                         : std::all_of(parts.begin(), parts.end(), partHolds);
}
