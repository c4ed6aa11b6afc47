#include "core/spinbarmodel.h"

#include "core/experimentlibrary.h"
#include "core/spinbarrecord.h"
#include "core/spinbarsettings.h"
#include "detection/spinbardetection.h"
#include "device/curlyspinbar.h"
#include "device/devicetypes.h"
#include "framework/common/fileutilities.h"

#include <QDateTime>
#include <QStandardPaths>

#include <chrono>

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::milliseconds UpdateInterval{500};
constexpr double MillisecondsPerSecond = 1000.0;

SpinbarModel *theModel = nullptr;

QString localDataFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
}

} // namespace

SpinbarModel::SpinbarModel(QObject *parent, const QString &dataFolder)
    : QObject(parent)
    , m_dataFolder(FileUtilities::FolderSlash(dataFolder.isEmpty() ? localDataFolder() : dataFolder))
{
    for (const QString &folder : {m_dataFolder, recordsFolder(), scriptsFolder()})
        FileUtilities::createIfNotExists(folder);
    m_settings = std::make_unique<SpinbarSettings>(m_dataFolder + "Settings.xml"_L1, nullptr);
    m_settings->reload();
    connectSettings();
    DeviceTypes::registerAll();
    m_device = std::make_unique<CurlySpinbar>(u"Spinbar"_s, nullptr);
    connectDevice();
    theModel = this;
}

SpinbarModel::~SpinbarModel()
{
    delete m_record;
    if (theModel == this)
        theModel = nullptr;
}

SpinbarModel *SpinbarModel::instance()
{
    if (!theModel)
        new SpinbarModel(nullptr);
    return theModel;
}

QString SpinbarModel::settingsFilePath()
{
    return localDataFolder() + "/Settings.xml"_L1;
}

SpinbarSettings *SpinbarModel::settings() const
{
    return m_settings.get();
}

CurlySpinbar *SpinbarModel::device() const
{
    return m_device.get();
}

QString SpinbarModel::recordsFolder() const
{
    return m_dataFolder + "Records/"_L1;
}

QString SpinbarModel::scriptsFolder() const
{
    return m_dataFolder + "Scripts/"_L1;
}

SpinbarRecord *SpinbarModel::currentRecord() const
{
    return m_record;
}

void SpinbarModel::connectSettings()
{
    connect(m_settings.get(), &SpinbarSettings::changedMinDetectionSeconds, this,
            &SpinbarModel::copyDetectionSeconds);
    connect(m_settings.get(), &SpinbarSettings::changedMaxTrailDetectionSeconds, this,
            &SpinbarModel::copyDetectionSeconds);
    copyDetectionSeconds();
}

void SpinbarModel::copyDetectionSeconds()
{
    SpinbarDetection::setMinimumSeconds(m_settings->getMinDetectionSeconds());
    SpinbarDetection::setTrailSeconds(m_settings->getMaxTrailDetectionSeconds());
}

void SpinbarModel::connectDevice()
{
    connect(m_device.get(), &CurlySpinbar::disconnected, this, &SpinbarModel::stopRecord);
    connect(m_device.get(), &CurlySpinbar::newStatus, this, [this](const QString &status) {
        if (m_recording && m_record)
            m_record->addStatus(status);
    });
    connect(m_device.get(), &CurlySpinbar::detectionFinished, this,
            [this](qint64 start, qint64 end, double rotations, int index, bool isRat) {
                if (m_recording && m_record)
                    m_record->addItem(start, end, rotations, index, isRat, {});
            });
}

void SpinbarModel::startRecord(QString path)
{
    if (m_recording || !m_device || !m_device->isConnected())
        return;
    m_device->resetDetection();
    const QDateTime now = QDateTime::currentDateTime();
    if (path.isEmpty())
        path = ExperimentLibrary(recordsFolder()).newFolder(now);
    FileUtilities::createIfNotExists(path);
    if (!m_updateTimer) {
        m_updateTimer = new QTimer(this);
        connect(m_updateTimer, &QTimer::timeout, this, &SpinbarModel::handleTick);
    }
    dropRecord();
    m_record = new SpinbarRecord(path, now, nullptr);
    m_record->setSn(m_device->serialNumber());
    m_record->start();
    m_updateTimer->start(UpdateInterval);
    m_recording = true;
    m_recordStartMs = QDateTime::currentMSecsSinceEpoch();
    emit recordStarted();
}

void SpinbarModel::handleTick()
{
    if (!m_recording)
        return;
    emit recordDurationChanged(double(QDateTime::currentMSecsSinceEpoch() - m_recordStartMs)
                               / MillisecondsPerSecond);
}

void SpinbarModel::stopRecord()
{
    if (!m_recording)
        return;
    if (m_updateTimer)
        m_updateTimer->stop();
    if (m_record) {
        flushPresentAnimals();
        dropRecord();
    }
    m_recording = false;
    emit recordStopped();
}

void SpinbarModel::flushPresentAnimals()
{
    for (const SpinbarDetection *detector : m_device->detectors()) {
        // The raw counter difference: a row of a stop is not divided by the gear ratio as that of a fall is.
        if (detector->isPresent())
            m_device->finishDetection(detector->startTime(), detector->lastClock(),
                                      double(detector->rotations()), detector->index(), detector->isRat());
    }
}

void SpinbarModel::dropRecord()
{
    if (!m_record)
        return;
    m_record->stop();
    m_record->deleteLater();
    m_record = nullptr;
}

void SpinbarModel::shutdown()
{
    if (m_recording)
        stopRecord();
    if (m_updateTimer)
        m_updateTimer->stop();
}

bool SpinbarModel::isDeviceActive() const
{
    return m_deviceActive;
}

void SpinbarModel::setDeviceActive(bool active)
{
    m_deviceActive = active;
    if (m_device)
        m_device->setLinkEnabled(active);
}
