#include "framework/settings/widgets/suggestions.h"

#include <QStringList>

#include <cmath>

using namespace Qt::StringLiterals;

QList<double> Suggestions::parse(const QString &text)
{
    QList<double> suggestions;
    const QStringList parts = text.split(','_L1);
    for (const QString &part : parts) {
        bool ok = false;
        const double number = part.trimmed().toDouble(&ok);
        if (ok)
            suggestions.append(number);
    }
    return suggestions;
}

double Suggestions::stepped(const QList<double> &suggestions, double current, int steps)
{
    // The search starts from the last value itself in the place of a distance.
    double bestDistance = suggestions.last();
    qsizetype best = 0;
    for (qsizetype i = 0; i < suggestions.size(); ++i) {
        const double distance = std::abs(suggestions.at(i) - current);
        if (bestDistance > distance) {
            bestDistance = distance;
            best = i;
        }
    }
    return suggestions.at(qBound<qsizetype>(0, best + steps, suggestions.size() - 1));
}
