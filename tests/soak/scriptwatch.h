#pragma once

#include "scripts/scriptplayer.h"

#include <QElapsedTimer>
#include <QObject>

#include <optional>

class CurlySpinbar;

/// Plays a speed script to the instrument by the host's clock and claims at each tick that what was commanded
/// last is what that clock says, and that commands come as long as it does not stand before the cycle's
/// start.
class ScriptWatch : public QObject
{
    Q_OBJECT

public:
    ScriptWatch(CurlySpinbar *device, const QString &folder, QObject *parent = nullptr);

    /// Starts the script or stops it.
    void toggle();
    qint64 commands() const { return m_commands; }

Q_SIGNALS:
    void complained(const QString &text);

private:
    void look(double seconds);

    std::optional<double> m_speed;
    QElapsedTimer m_silence;
    qint64 m_commands = 0;
    ScriptPlayer m_player; // last, as it stops the drum when it goes
};
