#pragma once

#include <QList>
#include <QString>

/// What the instrument's status messages have told so far.
struct InstrumentStatus
{
    static constexpr int RatLanes = 4;
    static constexpr int MouseLanes = 7;
    /// What an empty lane reads.
    static constexpr int EmptyReading = 40;

    struct Update
    {
        bool powerChanged = false;
        /// The message held readings for all lanes of the drum.
        bool hasReadings = false;
    };

    /// Takes over what the message "S,..." defines. Fields that don't parse leave the old value, and so does
    /// a reading of zero. \a mice chooses the list that is read.
    Update apply(const QString &message, bool mice);

    const QList<int> &readings(bool mice) const { return mice ? mouseReadings : ratReadings; }

    QList<int> ratReadings = QList<int>(RatLanes, EmptyReading);
    QList<int> mouseReadings = QList<int>(MouseLanes, EmptyReading);
    bool powered = false;
    /// Thousandths of a motor rotation.
    qint64 rotationCounter = 0;
    /// Milliseconds of the instrument.
    qint64 clock = 0;
};
