#pragma once

#include <QByteArray>
#include <QFile>

#include <optional>

/// Gives the lines of a recorded "status.log" back as the messages that they were, one by one, however long
/// the file is. Lines that can't have been one message are passed over.
class StatusReplay
{
public:
    bool open(const QString &path);
    QString errorString() const { return m_file.errorString(); }

    /// Nothing at the end of the file.
    std::optional<QByteArray> next();

    /// The last message's clock; that of the one before where it has none.
    qint64 clockMs() const { return m_clockMs; }
    qint64 skippedLines() const { return m_skippedLines; }

private:
    void skipRestOfLine();

    QFile m_file;
    qint64 m_clockMs = 0;
    qint64 m_skippedLines = 0;
};
