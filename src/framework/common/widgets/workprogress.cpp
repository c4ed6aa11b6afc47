#include "framework/common/widgets/workprogress.h"

#include <QCoreApplication>
#include <QThread>
#include <QTimer>

#include <atomic>
#include <memory>

namespace {

constexpr int LookPeriodMs = 50;
// Enough for the title of the window.
constexpr int LeastWidth = 320;

} // namespace

WorkProgress::WorkProgress(const QString &title, const QString &text, int steps, QWidget *parent)
    : m_dialog(text.isEmpty() ? title : text, QCoreApplication::translate("Generic", "Cancel"), 0, steps,
               parent)
{
    m_dialog.setWindowTitle(title);
    m_dialog.setMinimumWidth(LeastWidth);
    m_dialog.setWindowModality(Qt::ApplicationModal);
    m_dialog.setAutoReset(false);
    m_dialog.setAutoClose(false);
    m_dialog.setMinimumDuration(PatienceMs);
    m_dialog.setValue(0);
    m_sinceLook.start();
}

bool WorkProgress::step()
{
    ++m_done;
    if (m_sinceLook.elapsed() >= LookPeriodMs)
        look({});
    return !m_dialog.wasCanceled();
}

void WorkProgress::runBeside(const std::function<void(const WorkStep &)> &work)
{
    std::atomic<int> done = m_done;
    std::atomic<bool> cancelled = m_dialog.wasCanceled();
    std::atomic<bool> worked = false;
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        work([&] {
            ++done;
            return !cancelled;
        });
        worked = true;
    }));
    QTimer wake;
    QObject::connect(thread.get(), &QThread::finished, &wake,
                     [] {}); // does nothing but end a wait for events
    wake.start(LookPeriodMs);
    thread->start();
    while (!worked) {
        look(QEventLoop::WaitForMoreEvents);
        m_done = done;
        cancelled = m_dialog.wasCanceled();
    }
    thread->wait();
    m_done = done;
}

void WorkProgress::look(QEventLoop::ProcessEventsFlags flags)
{
    m_sinceLook.start();
    m_dialog.setValue(m_done);
    // What was clicked before the dialog is there reaches the window behind the work.
    if (!m_dialog.isVisible())
        flags |= QEventLoop::ExcludeUserInputEvents;
    QCoreApplication::processEvents(flags);
}
