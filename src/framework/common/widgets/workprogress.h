#pragma once

#include "framework/common/workstep.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QProgressDialog>

#include <functional>

/// Long work that the operator waits for. The instrument and the timers go on meanwhile; input waits, until
/// after half a second a dialog tells how far the work is and can end it.
class WorkProgress
{
public:
    static constexpr int PatienceMs = 500;

    /// \a title stands in the place of an empty \a text, too.
    WorkProgress(const QString &title, const QString &text, int steps, QWidget *parent);

    /// One more step is done. False once the operator wants no more.
    bool step();
    /// Returns when \a work, which runs on a thread of its own, is done. The step that it is given may be
    /// called there and counts like step().
    void runBeside(const std::function<void(const WorkStep &step)> &work);

private:
    void look(QEventLoop::ProcessEventsFlags flags);

    QProgressDialog m_dialog;
    QElapsedTimer m_sinceLook;
    int m_done = 0;
};
