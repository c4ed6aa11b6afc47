#include "core/spinbarrecord.h"

#include "core/boundedmath.h"
#include "core/experimentstatistics.h"
#include "core/gentlegrowth.h"
#include "core/recordslog.h"
#include "core/statusline.h"

#include "framework/common/fileutilities.h"

#include <QMap>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr double MillisecondsPerSecond = 1000.0;
constexpr double CounterStepsPerRotation = 1000.0;
constexpr std::size_t MinSamplesForSpeeds = 3;

/// rad/s of the motor over one status period.
double stepSpeed(qint64 counter, qint64 previous)
{
    return Bounded::difference(counter, previous) * SpinbarRecord::TwoPi
           / (SpinbarRecord::StatusPeriodSeconds * CounterStepsPerRotation);
}

} // namespace

SpinbarRecord::SpinbarRecord(const QString &folder, const QDateTime &when, QObject *parent)
    : QObject(parent)
    , m_folder(FileUtilities::FolderSlash(folder))
    , m_name(ExperimentFile::nameOf(m_folder))
{
    FileUtilities::createIfNotExists(m_folder);
    m_data.timestamp = when.toMSecsSinceEpoch();
}

SpinbarRecord::~SpinbarRecord()
{
    stop();
}

void SpinbarRecord::start()
{
    m_statusLoaded = true;
    m_speeds.clear();
    m_data.firstDeviceTime = 0;
    m_statusLog.open(m_folder + "status.log"_L1);
    save();
}

void SpinbarRecord::stop()
{
    m_statusLoaded = false;
    if (!m_statusLog.isOpen())
        return;
    m_statusLog.close();
    save();
}

void SpinbarRecord::addStatus(const QString &line)
{
    if (!m_statusLog.isOpen())
        return;
    if (const auto sample = StatusLine::sampleOfMessage(line)) {
        if (m_data.firstDeviceTime == 0)
            m_data.firstDeviceTime = sample->timeMs;
        m_lastDeviceTime = sample->timeMs;
        if (!m_counters.isEmpty()) {
            growGently(m_speeds);
            m_speeds.append(stepSpeed(sample->counter, m_counters.latest().counter));
        }
        m_counters.growGently();
        m_counters.insert(sample->timeMs, sample->counter);
    }
    m_statusLog.append(line);
}

void SpinbarRecord::addItem(qint64 start, qint64 end, double rotations, int index, bool rat,
                            const QString &title)
{
    m_data.items.append({std::max(start, m_data.firstDeviceTime), end, index, rotations, rat, title});
    save();
}

bool SpinbarRecord::load()
{
    return ExperimentFile::read(experimentJsonPath(), m_data);
}

bool SpinbarRecord::save()
{
    QString reason;
    const bool saved =
        ExperimentFile::write(experimentJsonPath(), ExperimentFile::toJson(m_data, m_name), &reason);
    m_saveError = saved ? QString() : u"'%1': %2"_s.arg(experimentJsonPath(), reason);
    return saved;
}

QString SpinbarRecord::writeError() const
{
    return m_statusLog.error().isEmpty() ? m_saveError : m_statusLog.error();
}

void SpinbarRecord::loadStatus(bool force)
{
    if (m_statusLoaded && !force)
        return;
    const QString path = m_folder + "status.log"_L1;
    if (!StatusLog::read(path, m_counters)) {
        // Every reader tries again, which need not fill the log.
        if (!std::exchange(m_missingLogTold, true))
            qCWarning(recordsLog) << "Cannot read" << path;
        return;
    }
    m_statusLoaded = true;
    const auto &samples = m_counters.samples();
    if (samples.size() < MinSamplesForSpeeds)
        return;
    m_speeds.resize(qsizetype(samples.size()) - 1);
    std::transform(samples.cbegin() + 1, samples.cend(), samples.cbegin(), m_speeds.begin(),
                   [](const StatusSample &later, const StatusSample &earlier) {
                       return stepSpeed(later.counter, earlier.counter);
                   });
}

void SpinbarRecord::releaseStatus()
{
    if (m_statusLog.isOpen())
        return;
    m_counters.clear();
    m_speeds = QList<double>(); // clear() would keep the memory
    m_statusLoaded = false;
}

const StatusCounters &SpinbarRecord::counters()
{
    loadStatus(false);
    return m_counters;
}

const StatusCounters::Samples &SpinbarRecord::loadedSamples()
{
    return counters().samples();
}

QList<ExperimentItem> SpinbarRecord::normalizedItems()
{
    const auto &samples = loadedSamples();
    const qint64 first = samples.empty() ? 0 : samples.front().timeMs;
    if (m_lastDeviceTime <= 0)
        m_lastDeviceTime = samples.empty() ? 0 : samples.back().timeMs;
    QMap<qint64, ExperimentItem> byStart;
    for (ExperimentItem item : std::as_const(m_data.items)) {
        item.start = std::max<qint64>(Bounded::subtract(item.start, first), 0);
        // The limit is meant to be the device's own time, without the first taken off.
        item.end = std::min(Bounded::subtract(item.end, first), m_lastDeviceTime);
        if (byStart.contains(item.start))
            item.start = Bounded::add(item.start, 1);
        byStart.insert(item.start, item);
    }
    return byStart.values();
}

qint64 SpinbarRecord::firstDeviceTime()
{
    if (m_data.firstDeviceTime == 0) {
        if (const auto &samples = loadedSamples(); !samples.empty())
            m_data.firstDeviceTime = samples.front().timeMs;
    }
    return m_data.firstDeviceTime;
}

double SpinbarRecord::durationSeconds()
{
    const auto &samples = loadedSamples();
    if (samples.size() < MinSamplesForSpeeds)
        return 0.0;
    return double(Bounded::distance(samples.back().timeMs, samples.front().timeMs)) / MillisecondsPerSecond;
}

QList<double> SpinbarRecord::speeds()
{
    loadStatus(false);
    return m_speeds;
}

double SpinbarRecord::speedBetween(qint64 from, qint64 to)
{
    loadStatus(false);
    const StatusSample *first = m_counters.firstMatch(from, TimeMatchToleranceMs);
    const StatusSample *second = m_counters.firstMatch(to, TimeMatchToleranceMs);
    if (!first || !second || first->timeMs == second->timeMs)
        return 0.0;
    return (double(Bounded::distance(second->counter, first->counter)) / CounterStepsPerRotation)
           / (double(Bounded::distance(second->timeMs, first->timeMs)) / MillisecondsPerSecond);
}

QList<QList<QVariant>> SpinbarRecord::experimentTable(bool brief)
{
    return ExperimentStatistics::experimentTable(*this, brief);
}

QList<QList<QVariant>> SpinbarRecord::summaryTable(const QList<SpinbarRecord *> &records, bool brief)
{
    return ExperimentStatistics::summaryTable(records, brief);
}
