#pragma once

#include "core/experimentitem.h"

#include <QByteArray>
#include <QList>
#include <QString>

/// What "experiment.json" holds.
struct ExperimentData
{
    qint64 timestamp = 0;       ///< Host time of the start, ms since the epoch.
    qint64 firstDeviceTime = 0; ///< ms; 0 until known.
    QString title;
    QString comment;
    QString sn;
    QList<ExperimentItem> items;
};

/// "experiment.json": reading is tolerant, writing is strict.
namespace ExperimentFile {

/// folder + "experiment.json"; \a folder ends with "/".
QString pathIn(const QString &folder);

/// The name under which the experiment of a folder is known: the last part of the path.
QString nameOf(const QString &folder);

/// Sets what the file holds and appends its usable rows. False if it can't be read as an experiment; what
/// was read before the failure stays set.
bool read(const QString &path, ExperimentData &data);

/// The whole file. The title goes in whenever \a name is not empty.
QByteArray toJson(const ExperimentData &data, const QString &name);

/// Rewrites the file in place with one write call, never leaving it short on the way. False, with a line in
/// the log and the reason in \a error, on failure.
bool write(const QString &path, const QByteArray &json, QString *error = nullptr);

} // namespace ExperimentFile
