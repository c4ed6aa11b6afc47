#include "framework/common/ntimer.h"

#include <QLoggingCategory>

Q_LOGGING_CATEGORY(lcTimer, "spinbar.timer")

NTimer::NTimer(QObject *parent)
    : QTimer(parent)
{}

NTimer::~NTimer()
{
    qCDebug(lcTimer) << "Destroy ntimer";
}

void NTimer::start(int msec)
{
    QTimer::start(msec);
}

void NTimer::start()
{
    QTimer::start();
}

void NTimer::stop()
{
    if (!objectName().isEmpty())
        qCDebug(lcTimer).noquote() << objectName() << "stopped";
    QTimer::stop();
}
