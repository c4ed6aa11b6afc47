#include "simulator/terminationsignals.h"

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr std::array Signals{SIGINT, SIGTERM, SIGHUP};

/// The only thing that a signal handler may safely do is to write to a descriptor.
std::array<int, 2> pipeEnds{-1, -1};

void onSignal(int)
{
    const int before = errno;
    const char byte = 0;
    // A full pipe is request enough.
    [[maybe_unused]] const ssize_t written = ::write(pipeEnds[1], &byte, 1);
    errno = before;
}

void install(void (*handler)(int))
{
    struct sigaction action
    {};
    action.sa_handler = handler;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (const int signal : Signals)
        ::sigaction(signal, &action, nullptr);
}

} // namespace

TerminationSignals::TerminationSignals(QObject *parent)
    : QObject(parent)
{
    if (::pipe(pipeEnds.data()) != 0)
        return;
    for (const int end : pipeEnds) {
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
        ::fcntl(end, F_SETFL, O_NONBLOCK);
    }
    auto *notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &TerminationSignals::readPipe);
    install(onSignal);
}

TerminationSignals::~TerminationSignals()
{
    if (pipeEnds[0] < 0)
        return;
    install(SIG_DFL);
    for (int &end : pipeEnds) {
        ::close(end);
        end = -1;
    }
}

void TerminationSignals::readPipe()
{
    std::array<char, 16> bytes;
    if (::read(pipeEnds[0], bytes.data(), bytes.size()) > 0)
        emit requested();
}
