#include "framework/common/terminationsignals.h"

#include <QSocketNotifier>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#else
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

#include <array>
#endif

namespace {

#ifdef Q_OS_WIN

TerminationSignals *theReceiver = nullptr;

// Runs in a thread of the system's own.
BOOL WINAPI handleConsoleEvent(DWORD)
{
    QMetaObject::invokeMethod(theReceiver, &TerminationSignals::requested, Qt::QueuedConnection);
    return TRUE;
}

#else

// A handler may do little more than write a byte: the event loop reads it at the other end.
std::array<int, 2> thePipe{-1, -1};
constexpr std::array theSignals{SIGINT, SIGTERM, SIGHUP};
std::array<struct sigaction, theSignals.size()> theEarlierActions{};

void handleSignal(int)
{
    const int errorBefore = errno;
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = write(thePipe[1], &byte, sizeof(byte));
    errno = errorBefore;
}

#endif

} // namespace

#ifdef Q_OS_WIN

TerminationSignals::TerminationSignals(QObject *parent)
    : QObject(parent)
{
    theReceiver = this;
    SetConsoleCtrlHandler(handleConsoleEvent, TRUE);
}

TerminationSignals::~TerminationSignals()
{
    SetConsoleCtrlHandler(handleConsoleEvent, FALSE);
    theReceiver = nullptr;
}

#else

TerminationSignals::TerminationSignals(QObject *parent)
    : QObject(parent)
{
    if (pipe2(thePipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    m_notifier = new QSocketNotifier(thePipe[0], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        while (read(thePipe[0], &byte, sizeof(byte)) > 0) {
        }
        emit requested();
    });
    struct sigaction action = {};
    action.sa_handler = handleSignal;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (std::size_t i = 0; i < theSignals.size(); ++i) {
        sigaction(theSignals[i], &action, &theEarlierActions[i]);
        // Whoever started the process so wants it to outlive its terminal.
        if (theSignals[i] == SIGHUP && theEarlierActions[i].sa_handler == SIG_IGN)
            sigaction(SIGHUP, &theEarlierActions[i], nullptr);
    }
    std::signal(SIGPIPE, SIG_IGN);
}

TerminationSignals::~TerminationSignals()
{
    if (!m_notifier)
        return;
    for (std::size_t i = 0; i < theSignals.size(); ++i)
        sigaction(theSignals[i], &theEarlierActions[i], nullptr);
    delete m_notifier;
    close(thePipe[0]);
    close(thePipe[1]);
}

#endif
