#pragma once

#include <QList>
#include <QString>

class QIODevice;

/// What happens to the instrument and when, read from a text with one event a line:
///
///     SECONDS LANE on|off            an animal is on the drum, or is not
///     SECONDS power on|off           the motor's power supply
///     SECONDS link off [SECONDS]     the line is cut, and back after so long
///     SECONDS send TEXT              a message out of turn
///
/// SECONDS count from the first "statusOn" on the instrument's clock, LANE from 1; "#" begins a comment.
struct ScenarioEvent
{
    enum class Kind { Lane, Power, LinkOff, Send };

    static constexpr qint64 ForEver = -1;

    qint64 atMs = 0;
    Kind kind = Kind::Lane;
    /// From 0, for Lane.
    int lane = 0;
    /// For Lane and Power.
    bool on = false;
    /// For LinkOff: the length of the cut, or ForEver.
    qint64 durationMs = ForEver;
    /// For Send.
    QString text;
};

struct Scenario
{
    /// In the order of their times; those of one moment in the order of their lines.
    QList<ScenarioEvent> events;

    struct Result;
    /// \a name stands in the message of an error. Reads until the first line that is none.
    static Result read(QIODevice &device, const QString &name);
    static Result readFile(const QString &path);
};

struct Scenario::Result
{
    Scenario scenario;
    /// File, line number and text of what does not parse; empty on success.
    QString error;
};
