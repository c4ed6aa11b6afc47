#include "fuzztarget.h"

#include "core/spinbarrecord.h"
#include "detection/spinbardetection.h"
#include "device/curlymessageparser.h"
#include "device/instrumentstatus.h"

#include <algorithm>
#include <memory>

using FuzzTarget::require;

namespace {

/// The road of the bytes: parser, status, one detector a lane, and the record in memory and on disk.
class Road
{
public:
    explicit Road(bool mice)
        : m_mice(mice)
        , m_record(FuzzTarget::scratchFolder() + "recording", QDateTime::fromMSecsSinceEpoch(0))
    {
        const int lanes = mice ? InstrumentStatus::MouseLanes : InstrumentStatus::RatLanes;
        for (int lane = 0; lane < lanes; ++lane) {
            m_lanes.push_back(std::make_unique<SpinbarDetection>(lane, !mice));
            QObject::connect(m_lanes.back().get(), &SpinbarDetection::lost, &m_record,
                             [this](qint64 start, qint64 end, double rotations, int index) {
                                 m_record.addItem(start, end, rotations, index, !m_mice, {});
                             });
        }
        m_record.start();
    }

    void take(const QString &message)
    {
        const InstrumentStatus::Update update = m_status.apply(message, m_mice);
        m_record.addStatus(message);
        if (!update.hasReadings)
            return;
        const QList<int> &readings = m_status.readings(m_mice);
        for (std::size_t lane = 0; lane < m_lanes.size(); ++lane)
            m_lanes[lane]->update(readings.at(qsizetype(lane)), m_status.rotationCounter, m_status.clock);
    }

    void finish()
    {
        m_record.stop();
        require(m_record.writeError().isEmpty(), "all is on the disk");
        SpinbarRecord copy(m_record.folder(), {});
        require(copy.load(), "what was recorded can be read");
        QList<ExperimentItem> counting = m_record.rawItems();
        counting.removeIf([](const ExperimentItem &item) {
            return item.start < 0 || item.end <= item.start || item.rotations <= 0;
        });
        // A JSON number is exact up to 2^53, which is 285,000 years.
        constexpr qint64 LargestExact = 1LL << 53;
        const bool exact = std::ranges::all_of(
            counting, [](const ExperimentItem &item) { return item.end <= LargestExact; });
        require(!exact || copy.rawItems() == counting, "every row that counts is read as it was written");
        copy.experimentTable(false);
        SpinbarRecord::summaryTable({&copy}, true);
    }

private:
    bool m_mice;
    InstrumentStatus m_status;
    SpinbarRecord m_record;
    std::vector<std::unique_ptr<SpinbarDetection>> m_lanes;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    CurlyMessageParser parser;
    const QStringList messages = parser.parseText(QString::fromUtf8(FuzzTarget::bytes(data + 1, size - 1)));
    Road road(data[0] % 2 == 1);
    for (const QString &message : messages)
        road.take(message);
    road.finish();
    return 0;
}
