#include "framework/settings/widgets/numberlimits.h"

#include "framework/settings/abstractmetadescription.h"

#include <QDoubleSpinBox>

using namespace Qt::StringLiterals;

namespace {

constexpr double LowestNumber = -2147483648.0;
constexpr double HighestNumber = 2147483647.0;

} // namespace

void applyNumberLimits(QDoubleSpinBox &box, const AbstractMetaDescription &description)
{
    // First, since limits are rounded to the decimals in force.
    bool ok = false;
    const int decimals = description.extras.value(u"Precision"_s).toInt(&ok);
    if (ok)
        box.setDecimals(decimals);
    box.setMinimum(description.hasMin ? description.min : LowestNumber);
    box.setMaximum(description.hasMax ? description.max : HighestNumber);
    if (description.hasStep)
        box.setSingleStep(description.step);
}
