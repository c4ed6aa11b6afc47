#include "cli/recordsession.h"
#include "cli/clitext.h"

#include "core/spinbarmodel.h"
#include "core/spinbarrecord.h"
#include "detection/spinbardetection.h"
#include "device/serialportmanager.h"

#include <QDir>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// Several exchange ticks of the link, so that the command that stops the drum leaves before the port closes.
constexpr auto FarewellTime = 200ms;

QString portLocation(const QString &portName)
{
    for (const PortInfo &port : SerialPorts::listed()) {
        if (port.name == portName)
            return port.location;
    }
    return portName;
}

} // namespace

RecordSession::RecordSession(SpinbarModel &model, const RecordOptions &options, CommandContext &context,
                             RecordReport &report, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_device(*model.device())
    , m_options(options)
    , m_context(context)
    , m_report(report)
{
    m_waitTimer.setSingleShot(true);
    m_durationTimer.setSingleShot(true);
    connect(&m_waitTimer, &QTimer::timeout, this, &RecordSession::handleWaitOver);
    connect(&m_durationTimer, &QTimer::timeout, &m_model, &SpinbarModel::stopRecord);
    connectModel();
    connectPlayer();
}

void RecordSession::connectModel()
{
    connect(&m_device, &BaseDevice::connected, this, &RecordSession::handleConnected);
    connect(&m_device, &CurlySpinbar::disconnected, this, &RecordSession::handleDisconnected);
    connect(&m_device, &CurlySpinbar::newStatus, this, &RecordSession::tellWriteError);
    connect(&m_device, &BaseDevice::serialNumberFetched, this, [this] {
        m_report.serial(m_device.serialNumber());
        beginWhenReady();
    });
    connect(&m_device, &BaseDevice::versionFetched, this, [this] { m_report.version(m_device.version()); });
    connect(&m_device, &CurlySpinbar::detectionFinished, this,
            [this](qint64 start, qint64 end, double rotations, int index, bool isRat) {
                if (m_phase == Phase::Recording)
                    m_report.fall(start, end, rotations, index, isRat);
            });
    connect(&m_model, &SpinbarModel::recordStopped, this, &RecordSession::handleRecordStopped);
}

void RecordSession::connectPlayer()
{
    connect(&m_player, &ScriptPlayer::speedDue, &m_device, &CurlySpinbar::setAngularSpeed);
    connect(&m_player, &ScriptPlayer::stopDue, this, &RecordSession::stopDrum);
    connect(&m_player, &ScriptPlayer::ended, &m_model, &SpinbarModel::stopRecord);
}

void RecordSession::start(const SpeedScript *script)
{
    m_scripted = script != nullptr;
    m_player.setScript(script);
    m_waitTimer.start(m_options.wait);
}

void RecordSession::interrupt()
{
    if (m_phase == Phase::Recording) {
        m_model.stopRecord();
    } else if (m_phase == Phase::Waiting) {
        m_context.err << "spinbar-cli: " << Cli::tr("interrupted before a recording began") << Qt::endl;
        end(ExitCode::Failed);
    }
}

void RecordSession::handleConnected()
{
    m_report.connected(portLocation(m_device.portName()));
    beginWhenReady();
}

void RecordSession::beginWhenReady()
{
    if (m_phase == Phase::Waiting && m_device.isConnected() && !m_device.serialNumber().isEmpty())
        beginRecording();
}

void RecordSession::beginRecording()
{
    m_waitTimer.stop();
    m_model.startRecord({});
    m_record = m_model.currentRecord();
    m_path = QDir::cleanPath(QDir(m_record->folder()).absolutePath());
    m_record->setTitle(m_options.title);
    m_record->setComment(m_options.comment);
    m_record->save();
    m_phase = Phase::Recording;
    m_report.recording(m_path);
    tellWriteError();
    connectDetectors();
    drive();
    if (m_options.duration)
        m_durationTimer.start(*m_options.duration);
}

void RecordSession::drive()
{
    if (m_options.speed)
        m_device.setMotorSpeed(m_options.motorSpeed(m_device.rodentMode()));
    if (m_scripted)
        m_player.setRunning(true);
}

void RecordSession::stopDrum()
{
    m_device.setMotorSpeed(0);
}

void RecordSession::connectDetectors()
{
    for (SpinbarDetection *detector : m_device.detectors()) {
        connect(detector, &SpinbarDetection::found, this, [this, lane = detector->index() + 1] {
            if (m_phase == Phase::Recording)
                m_report.found(lane);
        });
    }
}

void RecordSession::handleDisconnected()
{
    // In a recording the rows of its stop come first.
    if (m_phase == Phase::Waiting)
        m_report.disconnected();
}

void RecordSession::tellWriteError()
{
    if (!m_record)
        return;
    const QString error = m_record->writeError();
    if (!error.isEmpty() && error != m_toldWriteError)
        m_context.err << "spinbar-cli: " << error << Qt::endl;
    m_toldWriteError = error;
}

void RecordSession::handleRecordStopped()
{
    // The record lives until the event loop runs again.
    tellWriteError();
    const bool linkLost = !m_device.isConnected();
    if (linkLost)
        m_report.disconnected();
    m_report.stopped(m_path);
    if (m_scripted)
        m_player.setRunning(false);
    if (m_options.speed)
        stopDrum();
    if (!m_toldWriteError.isEmpty())
        end(ExitCode::Failed);
    else
        end(linkLost ? ExitCode::LinkLost : ExitCode::Done);
}

void RecordSession::handleWaitOver()
{
    m_context.err << "spinbar-cli: " << Cli::tr("no instrument answered in time") << Qt::endl;
    end(ExitCode::NoInstrument);
}

void RecordSession::end(ExitCode code)
{
    m_phase = Phase::Ending;
    m_waitTimer.stop();
    m_durationTimer.stop();
    QTimer::singleShot(FarewellTime, this, [this, code] { emit finished(code); });
}
