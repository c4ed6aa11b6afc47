#pragma once

#include <QJsonObject>
#include <QString>
#include <QTextStream>

struct CommandContext;

/// Tells what happens during a recording: as JSON, one object a line, on standard output, or in words on
/// standard error, with the folder alone on standard output.
class RecordReport
{
public:
    RecordReport(CommandContext &context, bool json);

    void connected(const QString &port);
    // The instrument repeats both; what is known already is not told again.
    void serial(const QString &value);
    void version(const QString &value);
    void recording(const QString &path);
    /// \a lane counts from 1.
    void found(int lane);
    /// \a index is the lane from 0; times are the instrument's milliseconds.
    void fall(qint64 start, qint64 end, double rotations, int index, bool rat);
    void disconnected();
    void stopped(const QString &path);

private:
    void event(const QString &name, const QJsonObject &fields, const QString &words);

    CommandContext &m_context;
    const bool m_json;
    QString m_serial;
    QString m_version;
};
