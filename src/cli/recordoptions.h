#pragma once

#include "device/curlyspinbar.h"

#include <chrono>
#include <optional>

class QCommandLineParser;

/// What `record` was asked to do.
struct RecordOptions
{
    std::chrono::milliseconds wait{};
    std::optional<std::chrono::milliseconds> duration;
    std::optional<CurlySpinbarDevice::RodentMode> rodent; ///< None: as the settings say.
    std::optional<double> speed;                          ///< In `unit`, from 0 on.
    CurlySpinbar::SpeedDimension unit = CurlySpinbar::Speed_RotationsPerSecond;
    QString scriptTitle; ///< Empty for none; excludes `speed`.
    QString title;
    QString comment;
    bool json = false;

    static void declare(QCommandLineParser &parser);
    /// None if a value is wrong; \a error then says which.
    static std::optional<RecordOptions> read(const QCommandLineParser &parser, QString &error);

    /// `speed` in motor rotations per second on the drum of \a mode.
    double motorSpeed(CurlySpinbarDevice::RodentMode mode) const;
};
