#pragma once

#include <QObject>

class QSocketNotifier;

/// Turns the system's wish that the process ends (interrupt, terminate and hang-up signals, the console's
/// control events) into a signal on the event loop. A reader of the program's output that goes away does not
/// end it either. At most one object at a time.
class TerminationSignals : public QObject
{
    Q_OBJECT

public:
    explicit TerminationSignals(QObject *parent = nullptr);
    ~TerminationSignals() override;

signals:
    void requested();

private:
    QSocketNotifier *m_notifier = nullptr;
};
