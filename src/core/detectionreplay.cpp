#include "core/detectionreplay.h"

#include "core/recordslog.h"
#include "detection/spinbardetection.h"
#include "device/instrumentstatus.h"

#include <QFile>

#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

// No status message comes near; what is longer is no line of a log.
constexpr qint64 MaxLineBytes = qint64(64) * 1024;

// The trail seconds are the whole process's.
class TrailSecondsScope
{
public:
    explicit TrailSecondsScope(double seconds) { SpinbarDetection::setTrailSeconds(seconds); }
    ~TrailSecondsScope() { SpinbarDetection::setTrailSeconds(m_before); }
    Q_DISABLE_COPY_MOVE(TrailSecondsScope)

private:
    const double m_before = SpinbarDetection::trailSeconds();
};

class Lanes
{
public:
    explicit Lanes(const DetectionReplay::Options &options)
        : m_mice(options.mice)
    {
        const int count = m_mice ? InstrumentStatus::MouseLanes : InstrumentStatus::RatLanes;
        for (int lane = 0; lane < count; ++lane) {
            auto &detector = m_detectors.emplace_back(std::make_unique<SpinbarDetection>(lane, !m_mice));
            detector->setThreshold(options.thresholds.value(lane, detector->threshold()));
            QObject::connect(detector.get(), &SpinbarDetection::lost, detector.get(),
                             [this](qint64 start, qint64 end, double rotations, int index) {
                                 m_items.append({start, end, index, rotations, !m_mice, {}});
                             });
        }
    }

    void take(const QString &message)
    {
        if (!message.startsWith("S,"_L1) || !m_status.apply(message, m_mice).hasReadings)
            return;
        const QList<int> &readings = m_status.readings(m_mice);
        for (std::size_t lane = 0; lane < m_detectors.size(); ++lane)
            m_detectors[lane]->update(readings.at(qsizetype(lane)), m_status.rotationCounter, m_status.clock);
    }

    QList<ExperimentItem> finish()
    {
        for (const auto &detector : m_detectors) {
            if (detector->isPresent()) {
                m_items.append({detector->startTime(),
                                detector->lastClock(),
                                detector->index(),
                                double(detector->rotations()),
                                detector->isRat(),
                                {}});
            }
        }
        return m_items;
    }

private:
    const bool m_mice;
    InstrumentStatus m_status;
    std::vector<std::unique_ptr<SpinbarDetection>> m_detectors;
    QList<ExperimentItem> m_items;
};

} // namespace

std::optional<QList<ExperimentItem>> DetectionReplay::run(const QString &path, const Options &options)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qCWarning(recordsLog) << "Cannot read" << path << file.errorString();
        return std::nullopt;
    }
    const TrailSecondsScope trail(options.trailSeconds);
    Lanes lanes(options);
    bool insideLongLine = false;
    QByteArray buffer(MaxLineBytes + 1, Qt::Uninitialized); // the last is for the zero behind a line
    for (qint64 got = 0; (got = file.readLine(buffer.data(), buffer.size())) > 0;) {
        const QByteArrayView line(buffer.constData(), got);
        const bool whole = line.endsWith('\n') || file.atEnd();
        if (whole && !insideLongLine)
            lanes.take(QString::fromUtf8(line.trimmed()).replace(u';', u','));
        insideLongLine = !whole;
    }
    return lanes.finish();
}
