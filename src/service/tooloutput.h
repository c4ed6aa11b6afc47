#pragma once

#include <QByteArray>
#include <QString>

/// What a tool printed: its end as it would stand on a terminal, and whether any of it speaks of a failure.
/// Takes the same memory however much it is.
class ToolOutput
{
public:
    static constexpr qint64 MaxShownBytes = qint64(32) * 1024;

    void append(const QByteArray &bytes);

    qint64 totalBytes() const { return m_totalBytes; }
    bool tellsFailure() const { return m_tellsFailure; }
    QString shownText() const;

private:
    void searchFailure(const QByteArray &bytes);

    QByteArray m_end;
    qint64 m_totalBytes = 0;
    /// A word may be cut by the border of two chunks.
    QByteArray m_carry;
    bool m_tellsFailure = false;
};
