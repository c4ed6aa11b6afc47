#pragma once

#include <QDateTime>
#include <QHash>
#include <QMap>
#include <QObject>
#include <QStringList>

/// The process's journal in memory: entries by type, running averages and named status values. Made at the
/// first use of a static function. It has no lock: other threads call the slots queued. Entries are kept to
/// the end of the process, so it is for service screens and not for high rates.
class GlobalConsole : public QObject
{
    Q_OBJECT

public:
    /// For the signals and slots.
    static GlobalConsole *Instance();
    static void freeData();

    /// An entry is dropped if its type is disabled. An invalid \a date means now.
    static void writeItem(const QString &message, const QString &type = {}, const QDateTime &date = {});
    static void writeLine(const QString &text, const QDateTime &date = {});
    /// Types are compared without regard to case.
    static void disableType(const QString &type, bool disabled = true);
    /// An empty \a path means NLogger::standardLogFilePath().
    static void enableLogging(bool enable, const QString &path = {});

    /// A mean over at most \a limit samples that lags one behind: the second sample replaces the first.
    static double countAverage(const QString &name, double value, int limit);
    static double getAverage(const QString &name);
    static QStringList getAverageNames();

    static void setStatus(const QString &name, const QString &value);
    static QString getStatus(const QString &name);
    static QStringList getStatusNames();
    /// All of them for an empty name.
    static void clearStatus(const QString &name);

    /// All entries, the newest of each type first.
    static QString currentText();

    void _enableLogging(bool enable, const QString &path);
    double _countAverage(const QString &name, double value, int limit);
    double _getAverage(const QString &name) const;
    QStringList _getAverageNames() const;
    void _setStatus(const QString &name, const QString &value);
    QString _getStatus(const QString &name) const;
    QStringList _getStatusNames() const;
    void _clearStatus(const QString &name);
    QString _currentText() const;

public slots:
    void _writeItem(const QString &message, const QString &type = {}, const QDateTime &date = {});
    void _writeLine(const QString &text, const QDateTime &date = {});
    void _disableType(const QString &type, bool disabled = true);

signals:
    void newEntry(const QString &entry);
    void newAverageName(const QString &name);
    void newStatusName(const QString &name);
    void updatedAverage(const QString &name, double value);
    void updatedStatus(const QString &name, const QString &value);
    /// The name is empty when all were cleared.
    void statusCleared(const QString &name);

private:
    struct Average
    {
        int count = 0;
        double value = 0.0;
        int limit = 0;
    };

    using QObject::QObject;

    /// By type, the newest first.
    QHash<QString, QStringList> m_entries;
    QMap<QString, Average> m_averages;
    QMap<QString, QString> m_statuses;
    QString m_logPath;
    bool m_logging = false;
    QStringList m_disabledTypes;
};
