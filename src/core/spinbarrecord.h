#pragma once

#include "core/experimentfile.h"
#include "core/experimentitem.h"
#include "core/statuslog.h"

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QVariant>

/// One experiment: one folder on disk and its meaning in memory. A recording feeds it and it keeps its
/// files up to date; later the same class reads them back. Times are device milliseconds.
class SpinbarRecord : public QObject
{
    Q_OBJECT

public:
    static constexpr int StatusPeriodMs = 200;
    static constexpr double StatusPeriodSeconds = StatusPeriodMs / 1000.0;
    static constexpr double RatDrumCircumference = 0.21991148575128552;   ///< m
    static constexpr double MouseDrumCircumference = 0.12566370614359174; ///< m
    static constexpr double TwoPi = 6.283185307179586;
    static constexpr int TimeMatchToleranceMs = 8;

    /// Makes \a folder if it is missing and takes the name from it.
    SpinbarRecord(const QString &folder, const QDateTime &when, QObject *parent = nullptr);
    ~SpinbarRecord() override;

    void start();
    void stop();
    void addStatus(const QString &line);
    void addItem(qint64 start, qint64 end, double rotations, int index, bool rat, const QString &title);

    /// Appends the rows of "experiment.json". False if the file is missing or is no experiment.
    bool load();
    bool save();
    /// What of the recording is not on the disk: the file and the reason of the first status line that was
    /// lost, else of the last save if it failed. Empty if all is there.
    QString writeError() const;
    /// Reads "status.log" unless it is in memory already.
    void loadStatus(bool force);
    /// Gives back the memory of what the next reader can load again; nothing during a recording.
    void releaseStatus();

    /// The identity of an experiment in lists.
    QString experimentJsonPath() const { return ExperimentFile::pathIn(m_folder); }
    QString folder() const { return m_folder; }
    QString name() const { return m_name; }
    QString title() const { return m_data.title; }
    QString comment() const { return m_data.comment; }
    QString sn() const { return m_data.sn; }
    /// Host time of the start, ms since the epoch.
    qint64 timestamp() const { return m_data.timestamp; }
    // The caller saves.
    void setComment(const QString &comment) { m_data.comment = comment; }
    void setTitle(const QString &title) { m_data.title = title; }
    void setSn(const QString &sn) { m_data.sn = sn; }

    QList<ExperimentItem> rawItems() const { return m_data.items; }
    /// Rows in order of their start, in ms from the first status line.
    QList<ExperimentItem> normalizedItems();
    bool isRat() const { return m_data.items.isEmpty() || m_data.items.constFirst().rat; }

    qint64 firstDeviceTime();
    /// 0 with fewer than 3 status lines.
    double durationSeconds();
    /// Motor speed in rad/s, one value per step between neighbouring status lines.
    QList<double> speeds();
    /// Mean speed between the status lines at two device times, in motor rotations per second; 0 if either
    /// time matches none.
    double speedBetween(qint64 from, qint64 to);
    /// The rotation counters by device time that the speeds come from, ascending.
    const StatusCounters &counters();
    bool isStatusLoaded() const { return m_statusLoaded; }

    /// A header row and one row per animal's stay, then the statistics. \a brief leaves out descriptions.
    QList<QList<QVariant>> experimentTable(bool brief);
    /// The same with one row per experiment.
    static QList<QList<QVariant>> summaryTable(const QList<SpinbarRecord *> &records, bool brief);

private:
    const StatusCounters::Samples &loadedSamples();

    QString m_folder;
    QString m_name;
    ExperimentData m_data;
    StatusLog::Writer m_statusLog;
    StatusCounters m_counters;
    QList<double> m_speeds;
    QString m_saveError;
    qint64 m_lastDeviceTime = 0;
    bool m_statusLoaded = false;
    bool m_missingLogTold = false;
};
