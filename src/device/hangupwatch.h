#pragma once

#include <QObject>
#include <QTimer>

class QSerialPort;

/// Tells of a port whose other end is gone, where the Qt at hand doesn't: from 6.7.1 on it takes the end of
/// file that a port reads then for silence, and reads it again without an end.
class HangUpWatch : public QObject
{
    Q_OBJECT

public:
    /// \a port owns the watch. For an open port that hangs up, its errorOccurred() is emitted with
    /// ResourceError, again and again until somebody closes it.
    explicit HangUpWatch(QSerialPort *port);

private:
    void look();

    QSerialPort *m_port;
    QTimer m_timer;
};
