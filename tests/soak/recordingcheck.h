#pragma once

#include <QByteArrayList>
#include <QString>

/// What an ended recording must be on the disk.
namespace RecordingCheck {

/// What is wrong with the recording in \a folder, empty if nothing. \a received are the status messages that
/// the program was handed while it recorded.
QString complaint(const QString &folder, const QByteArrayList &received);

/// Each "experiment.json" under \a recordsFolder must be read, each "status.log" consist of whole lines.
QString complaintAboutAll(const QString &recordsFolder);

} // namespace RecordingCheck
