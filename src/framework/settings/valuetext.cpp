#include "framework/settings/valuetext.h"

#include "framework/common/fileutilities.h"

#include <QPoint>
#include <QSize>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr int PointDigits = 6;

template <typename Number>
QString pairText(Number first, Number second)
{
    return QString::number(first) + ';'_L1 + QString::number(second);
}

QPointF pairOf(const QString &text)
{
    const QStringList parts = text.split(';'_L1);
    return parts.size() < 2 ? QPointF() : QPointF(parts.at(0).toDouble(), parts.at(1).toDouble());
}

} // namespace

bool ValueText::isStringMap(const QString &type)
{
    // The type system reports the type behind the alias.
    return type == "StringMap"_L1 || type == QLatin1StringView(QMetaType::fromType<StringMap>().name());
}

QString ValueText::toText(const QString &type, const QVariant &value)
{
    if (type == "uchar"_L1 || type == "char"_L1)
        return QString::number(value.toInt());
    if (type == "QPointF"_L1) {
        const QPointF point = value.toPointF();
        return QString::number(point.x(), 'g', PointDigits) + ';'_L1
               + QString::number(point.y(), 'g', PointDigits);
    }
    if (type == "QPoint"_L1)
        return pairText(value.toPoint().x(), value.toPoint().y());
    if (type == "QSize"_L1)
        return pairText(value.toSize().width(), value.toSize().height());
    if (type == "QByteArray"_L1)
        return FileUtilities::base64_encode(value.toByteArray());
    return value.toString();
}

QVariant ValueText::fromText(const QString &type, const QString &text)
{
    if (type == "QByteArray"_L1)
        return FileUtilities::base64_decode_as_bytes(text);
    if (type == "QPointF"_L1)
        return pairOf(text);
    if (type == "QPoint"_L1)
        return QPoint(cutToInt(pairOf(text).x()), cutToInt(pairOf(text).y()));
    if (type == "QSize"_L1)
        return QSize(cutToInt(pairOf(text).x()), cutToInt(pairOf(text).y()));
    return text;
}

int ValueText::cutToInt(double value)
{
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    return std::isnan(value) ? 0 : static_cast<int>(std::clamp(value, lowest, highest));
}
