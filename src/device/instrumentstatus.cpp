#include "device/instrumentstatus.h"

#include <QVarLengthArray>

namespace {

constexpr int Base = 16;
// With room to spare.
constexpr qsizetype UsualFields = 16;
constexpr qsizetype MinFields = 5;
constexpr qsizetype MinFieldsWithReadings = 9;
constexpr qsizetype PowerField = 1;
// Counted from the end of the message.
constexpr qsizetype ClockFromEnd = 1;
constexpr qsizetype CounterFromEnd = 2;
constexpr qsizetype LastReadingFromEnd = 3;

void readNumber(QStringView field, qint64 &value)
{
    bool ok = false;
    if (const qint64 number = field.toLongLong(&ok, Base); ok)
        value = number;
}

} // namespace

InstrumentStatus::Update InstrumentStatus::apply(const QString &message, bool mice)
{
    QVarLengthArray<QStringView, UsualFields> fields;
    for (const QStringView field : QStringView(message).tokenize(u','))
        fields.append(field);
    const qsizetype count = fields.size();
    Update update;
    if (count < MinFields)
        return update;
    const bool nowPowered = fields.at(PowerField) == u"1";
    update.powerChanged = nowPowered != powered;
    powered = nowPowered;
    readNumber(fields.at(count - CounterFromEnd), rotationCounter);
    readNumber(fields.at(count - ClockFromEnd), clock);
    if (count < MinFieldsWithReadings)
        return update;
    QList<int> &lanes = mice ? mouseReadings : ratReadings;
    // With nine to eleven fields the mouse lanes reach into the head of the message.
    const qsizetype first = count - LastReadingFromEnd - lanes.size() + 1;
    for (qsizetype lane = 0; lane < lanes.size(); ++lane) {
        // Zero means no news, and is also what a field gives that does not parse.
        if (const int reading = fields.at(first + lane).toInt(nullptr, Base); reading != 0)
            lanes[lane] = reading;
    }
    update.hasReadings = true;
    return update;
}
