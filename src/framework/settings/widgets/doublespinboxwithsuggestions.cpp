#include "framework/settings/widgets/doublespinboxwithsuggestions.h"

#include "framework/settings/widgets/suggestions.h"

void DoubleSpinBoxWithSuggestions::setSuggestions(const QList<double> &suggestions)
{
    m_suggestions = suggestions;
}

void DoubleSpinBoxWithSuggestions::stepBy(int steps)
{
    if (m_suggestions.isEmpty())
        QDoubleSpinBox::stepBy(steps);
    else
        setValue(Suggestions::stepped(m_suggestions, value(), steps));
}
