#include "detection/lanethresholds.h"

#include "detection/spinbardetection.h"

QList<int> LaneThresholds::fromText(const QString &text, int lanes)
{
    QList<int> thresholds;
    const QList<QStringView> entries = QStringView(text).split(u';');
    for (const QStringView entry : entries) {
        bool ok = false;
        const int threshold = entry.toInt(&ok);
        if (ok && SpinbarDetection::isThreshold(threshold))
            thresholds.append(threshold);
    }
    return thresholds.size() == lanes ? thresholds : QList<int>();
}
