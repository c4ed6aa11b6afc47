#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>

class CurlySpinbar;
class SpinbarRecord;
class SpinbarSettings;

/// The application's one model: its data folders, settings, instrument, and the recording in progress.
class SpinbarModel : public QObject
{
    Q_OBJECT

public:
    /// An empty \a dataFolder means the application's local data folder. The folders are created, and the
    /// object becomes the one that instance() gives.
    explicit SpinbarModel(QObject *parent = nullptr, const QString &dataFolder = {});
    ~SpinbarModel() override;

    /// The model, made on first use.
    static SpinbarModel *instance();

    /// The settings file of the application's local data folder; needs no model.
    static QString settingsFilePath();

    SpinbarSettings *settings() const;
    CurlySpinbar *device() const;
    QString recordsFolder() const;
    QString scriptsFolder() const;

    /// Null outside a recording.
    SpinbarRecord *currentRecord() const;

    /// Does nothing without a working link or while a recording runs. An empty \a path means a new folder
    /// under the records folder, named by the present moment.
    void startRecord(QString path);

    /// Turns animals still on the drum into rows, ends the recording and closes its files.
    void stopRecord();

    /// What closing the program does to a recording.
    void shutdown();

    /// Gives up the instrument's port for tools that need it, or takes it up again.
    void setDeviceActive(bool active);
    bool isDeviceActive() const;

signals:
    void recordStarted();
    void recordStopped();
    /// Host time since the start; about twice a second.
    void recordDurationChanged(double second);

private:
    void connectSettings();
    void connectDevice();
    void copyDetectionSeconds();
    void handleTick();
    void flushPresentAnimals();
    void dropRecord();

    QString m_dataFolder;
    std::unique_ptr<SpinbarSettings> m_settings;
    std::unique_ptr<CurlySpinbar> m_device;
    QTimer *m_updateTimer = nullptr;
    SpinbarRecord *m_record = nullptr;
    bool m_recording = false;
    qint64 m_recordStartMs = 0;
    bool m_deviceActive = true;
};
