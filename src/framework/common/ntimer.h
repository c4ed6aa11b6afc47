#pragma once

#include <QTimer>

/// A timer that tells the debug log of its end, by its object name.
class NTimer : public QTimer
{
    Q_OBJECT

public:
    explicit NTimer(QObject *parent = nullptr);
    ~NTimer() override;

    using QTimer::start;

public slots:
    void start(int msec);
    void start();
    void stop();
};
