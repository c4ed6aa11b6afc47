#include "soak/soak.h"

#include "soak/hostclock.h"
#include "soak/processfigures.h"
#include "soak/recordingcheck.h"

#include "core/spinbarrecord.h"
#include "core/spinbarsettings.h"
#include "device/curlyspinbar.h"
#include "device/serialportmanager.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QTextStream>

#include <algorithm>

#include <unistd.h>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

constexpr double Rate = 100;
constexpr int PlannedSeconds = 3600;
constexpr qint64 AllowedGrowthKiB = 16 * 1024;
constexpr int AllowedDescriptors = 4;
// A virtual machine is halted itself at times, which looks no different from within.
constexpr int AllowedHoldups = 3;
constexpr std::size_t FiguresToSettle = 8;
constexpr std::chrono::milliseconds ClockJumps[] = {-24h, -1h, -30s, -300ms, 300ms, 30s, 1h, 24h};
constexpr std::chrono::hours FurthestClock = 30 * 24h;

QTextStream &out()
{
    static QTextStream stream(stdout);
    return stream;
}

} // namespace

Soak::Soak(const QString &folder, quint32 seed, QObject *parent)
    : QObject(parent)
    , m_folder(folder)
    , m_random(seed)
    , m_simulator(folder)
{
    SerialPortManager::instance().setProvider([path = m_simulator.path()] {
        return QFile::exists(path) ? QList<PortInfo>{{path, path, {}, {}}} : QList<PortInfo>();
    });
    m_model = std::make_unique<SpinbarModel>(nullptr, folder + u"/data"_s);
    m_script = std::make_unique<ScriptWatch>(m_model->device(), folder);
    connectModel();
    connect(m_script.get(), &ScriptWatch::complained, this, &Soak::complain);
    connect(&m_actions, &QTimer::timeout, this, &Soak::act);
    connect(&m_samples, &QTimer::timeout, this, &Soak::sampleFigures);
}

Soak::~Soak()
{
    mendDisk();
    m_script.reset();
    m_model.reset();
}

void Soak::connectModel()
{
    connect(m_model->device(), &CurlySpinbar::newStatus, this, [this](const QString &message) {
        ++m_messages;
        if (!m_recordFolder.isEmpty())
            m_received.append(message.toUtf8());
    });
    connect(m_model.get(), &SpinbarModel::recordStopped, this, &Soak::finishRecording);
}

bool Soak::run(std::chrono::milliseconds duration)
{
    if (!HostClock::canBeMoved())
        complain(u"the host's clock can't be moved"_s);
    plugIn();
    m_deadline = QDeadlineTimer(duration);
    m_actions.start(500ms);
    m_samples.start(duration / 60);
    m_script->toggle();
    m_watchdog.forgive();
    QEventLoop loop;
    QTimer::singleShot(duration, &loop, &QEventLoop::quit);
    loop.exec();
    m_actions.stop();
    mendDisk();
    m_model->shutdown();
    const QString complaint = RecordingCheck::complaintAboutAll(m_model->recordsFolder());
    if (!complaint.isEmpty())
        complain(complaint);
    return report();
}

void Soak::plugIn()
{
    if (!m_simulator.startWithFaults(Rate, PlannedSeconds, m_random))
        complain(u"the simulator does not start"_s);
    m_watchdog.forgive();
}

void Soak::act()
{
    if (!m_simulator.isRunning())
        return plugIn();
    if (m_random.bounded(10) == 0)
        moveClock();
    if (m_random.bounded(20) == 0)
        m_script->toggle();
    if (m_model->currentRecord())
        return actWhileRecording();
    mendDisk();
    if (m_model->device()->isConnected())
        startRecording();
}

void Soak::actWhileRecording()
{
    CurlySpinbar &device = *m_model->device();
    switch (m_random.bounded(16)) {
    case 0:
        m_simulator.kill();
        m_watchdog.forgive();
        ++m_unplugs;
        break;
    case 1:
    case 2:
        m_model->stopRecord();
        break;
    case 3:
        device.setRodentMode(m_random.bounded(2) == 0 ? CurlySpinbarDevice::RodentMode::Rats
                                                      : CurlySpinbarDevice::RodentMode::Mice);
        break;
    case 4:
        breakDisk();
        break;
    case 5:
        mendDisk();
        break;
    case 6:
        m_model->settings()->setMaxTrailDetectionSeconds(m_random.bounded(5.0));
        break;
    default:
        device.setMotorSpeed(m_random.bounded(5.0));
        break;
    }
}

void Soak::startRecording()
{
    m_received.clear();
    m_diskFailedNow = false;
    // A clock that was set back comes by the same moment again.
    const bool sameMoment = m_lastStartMs != 0 && m_random.bounded(4) == 0;
    if (sameMoment)
        HostClock::holdAt(m_lastStartMs);
    m_model->startRecord({});
    if (sameMoment)
        HostClock::setRight();
    if (!m_model->currentRecord())
        return;
    m_lastStartMs = m_model->currentRecord()->timestamp();
    m_recordFolder = m_model->currentRecord()->folder();
    if (m_recordFolders.contains(m_recordFolder))
        complain(m_recordFolder + u": recorded over"_s);
    m_recordFolders.insert(m_recordFolder);
    ++m_recordings;
}

void Soak::finishRecording()
{
    const QString folder = std::exchange(m_recordFolder, {});
    // What a broken disk did not take can't be there; that it was told is checked instead.
    if (m_diskFailedNow || folder.isEmpty())
        return;
    const QString complaint = RecordingCheck::complaint(folder, m_received);
    if (!complaint.isEmpty())
        complain(complaint);
    m_watchdog.forgive();
}

void Soak::moveClock()
{
    ++m_clockJumps;
    const auto which = std::size_t(m_random.bounded(int(std::size(ClockJumps)) + 1));
    if (which == std::size(ClockJumps) || std::chrono::abs(HostClock::offset()) > FurthestClock)
        HostClock::setRight();
    else
        HostClock::jump(ClockJumps[which]);
}

void Soak::breakDisk()
{
    if (m_disk != Disk::Fine || m_recordFolder.isEmpty())
        return;
    ++m_brokenDisks;
    m_diskFailedNow = true;
    // The super-user may write everywhere.
    if (m_random.bounded(2) == 0 && geteuid() != 0) {
        m_disk = Disk::ReadOnly;
        QFile::setPermissions(m_model->recordsFolder(), QFile::ReadOwner | QFile::ExeOwner);
    } else {
        m_disk = Disk::Full;
        ProcessFigures::limitFileSize(QFileInfo(m_recordFolder + u"status.log"_s).size()
                                      + m_random.bounded(200));
    }
}

void Soak::mendDisk()
{
    if (std::exchange(m_disk, Disk::Fine) == Disk::ReadOnly)
        QFile::setPermissions(m_model->recordsFolder(),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    ProcessFigures::limitFileSize(-1);
}

void Soak::sampleFigures()
{
    m_residentKiB.append(ProcessFigures::residentKiB());
    m_descriptors.append(ProcessFigures::openDescriptors());
}

void Soak::complain(const QString &text)
{
    ++m_complaints;
    out() << text << Qt::endl;
}

bool Soak::report()
{
    out() << m_messages << " status messages, " << m_recordings << " recordings, " << m_unplugs
          << " unplugs, " << m_brokenDisks << " times a broken disk, " << m_clockJumps
          << " jumps of the clock, " << m_script->commands() << " speeds of the script\n"
          << "Longest hold-up of the event loop: " << m_watchdog.longestMs()
          << " ms, over the limit: " << m_watchdog.holdups() << '\n';
    if (std::size_t(m_residentKiB.size()) > 2 * FiguresToSettle) {
        const qint64 early = m_residentKiB.at(FiguresToSettle);
        const qint64 late = m_residentKiB.constLast();
        const auto half = m_descriptors.cbegin() + m_descriptors.size() / 2;
        const int mostEarly = *std::max_element(m_descriptors.cbegin(), half);
        const int mostLate = *std::max_element(half, m_descriptors.cend());
        out() << "Memory: " << early << " KiB when settled, " << late
              << " KiB at the end; most descriptors: " << mostEarly << " in the first half, " << mostLate
              << " in the second\n";
        if (late - early > AllowedGrowthKiB)
            complain(u"memory grew"_s);
        if (mostLate - mostEarly > AllowedDescriptors)
            complain(u"descriptors were not given back"_s);
    }
    if (m_watchdog.holdups() > AllowedHoldups)
        complain(u"the event loop was held up"_s);
    if (m_messages == 0 || m_recordings == 0)
        complain(u"nothing was recorded"_s);
    if (m_script->commands() == 0)
        complain(u"no script was played"_s);
    out() << (m_complaints == 0 ? "Nothing found" : "FOUND") << Qt::endl;
    return m_complaints == 0;
}
