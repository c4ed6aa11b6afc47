#pragma once

#include "cli/command.h"
#include "cli/recordoptions.h"
#include "cli/recordreport.h"
#include "scripts/scriptplayer.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

class SpeedScript;
class SpinbarModel;
class SpinbarRecord;

/// One recording from the wait for the instrument to its end.
class RecordSession : public QObject
{
    Q_OBJECT

public:
    RecordSession(SpinbarModel &model, const RecordOptions &options, CommandContext &context,
                  RecordReport &report, QObject *parent = nullptr);

    /// A script, if one is given, drives the drum and ends the recording with its last cycle.
    void start(const SpeedScript *script);

    /// Ends the recording in the ordinary way; without one, ends the wait.
    void interrupt();

signals:
    void finished(ExitCode code);

private:
    enum class Phase { Waiting, Recording, Ending };

    void connectModel();
    void handleConnected();
    void beginWhenReady();
    void beginRecording();
    void connectDetectors();
    void connectPlayer();
    void drive();
    void stopDrum();
    void handleDisconnected();
    void handleRecordStopped();
    void tellWriteError();
    void handleWaitOver();
    void end(ExitCode code);

    SpinbarModel &m_model;
    CurlySpinbar &m_device;
    const RecordOptions m_options;
    CommandContext &m_context;
    RecordReport &m_report;
    ScriptPlayer m_player;
    bool m_scripted = false;
    QTimer m_waitTimer;
    QTimer m_durationTimer;
    Phase m_phase = Phase::Waiting;
    QString m_path;
    QPointer<SpinbarRecord> m_record;
    QString m_toldWriteError;
};
