#include "simulator/pseudoterminal.h"

#include <QFile>
#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>

#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype QueueLimitBytes = 1'048'576;
/// What has waited for so long behind the system's full buffer is old news: a program that opens the line
/// later is not to be fed with it.
constexpr int UnreadMs = 2000;
constexpr int RetryMs = 10;

QString linkTarget(const QByteArray &link)
{
    std::array<char, PATH_MAX> target{};
    const ssize_t length = ::readlink(link.constData(), target.data(), target.size());
    return length < 0 ? QString() : QFile::decodeName(QByteArray(target.data(), length));
}

bool setFlags(int descriptor)
{
    return ::fcntl(descriptor, F_SETFD, FD_CLOEXEC) == 0 && ::fcntl(descriptor, F_SETFL, O_NONBLOCK) == 0;
}

} // namespace

PseudoTerminal::PseudoTerminal(QObject *parent)
    : QObject(parent)
{
    // A notifier for writing would spin on systems that call a full terminal writable.
    m_retry.setInterval(RetryMs);
    connect(&m_retry, &QTimer::timeout, this, &PseudoTerminal::sendQueued);
}

PseudoTerminal::~PseudoTerminal()
{
    close();
}

bool PseudoTerminal::open(const QString &linkPath)
{
    close();
    m_error.clear();
    if (!openMaster() || !openSlave() || (!linkPath.isEmpty() && !makeLink(linkPath))) {
        close();
        return false;
    }
    m_notifier = new QSocketNotifier(m_master, QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &PseudoTerminal::readMaster);
    return true;
}

void PseudoTerminal::close()
{
    m_retry.stop();
    m_queue.clear();
    m_queuedBytes = 0;
    m_sentOfFirst = 0;
    if (m_notifier) {
        // Deleted later, since this may run inside its own signal.
        m_notifier->setEnabled(false);
        m_notifier->deleteLater();
        m_notifier = nullptr;
    }
    if (!m_linkPath.isEmpty()) {
        // Somebody may have put something else there by now, which is not ours to remove.
        const QByteArray link = QFile::encodeName(m_linkPath);
        if (linkTarget(link) == m_devicePath)
            ::unlink(link.constData());
        m_linkPath.clear();
    }
    for (int *descriptor : {&m_slave, &m_master}) {
        if (*descriptor >= 0)
            ::close(*descriptor);
        *descriptor = -1;
    }
    m_devicePath.clear();
}

bool PseudoTerminal::openMaster()
{
    m_master = ::posix_openpt(O_RDWR | O_NOCTTY);
    if (m_master < 0)
        return fail(u"no pseudo-terminal to be had"_s);
    if (!setFlags(m_master) || ::grantpt(m_master) != 0 || ::unlockpt(m_master) != 0)
        return fail(u"cannot unlock the pseudo-terminal"_s);
    // The text belongs to the C library and changes with the next call.
    const char *name = ::ptsname(m_master);
    if (!name)
        return fail(u"the pseudo-terminal has no name"_s);
    m_devicePath = QFile::decodeName(name);
    return true;
}

bool PseudoTerminal::openSlave()
{
    m_slave = ::open(QFile::encodeName(m_devicePath).constData(), O_RDWR | O_NOCTTY);
    if (m_slave < 0 || !setFlags(m_slave))
        return fail(u"cannot open %1"_s.arg(m_devicePath));
    // A fresh terminal echoes: what is said before a program opens it would come back as commands.
    termios settings{};
    if (::tcgetattr(m_slave, &settings) != 0)
        return fail(u"cannot read the settings of %1"_s.arg(m_devicePath));
    ::cfmakeraw(&settings);
    if (::tcsetattr(m_slave, TCSANOW, &settings) != 0)
        return fail(u"cannot set %1 to raw mode"_s.arg(m_devicePath));
    return true;
}

bool PseudoTerminal::makeLink(const QString &linkPath)
{
    const QByteArray link = QFile::encodeName(linkPath);
    const QString target = linkTarget(link);
    // The number of a dead terminal is given out again, perhaps to this very one.
    const bool leftBehind =
        target == m_devicePath || (target.startsWith(u"/dev/pts/"_s) && !QFile::exists(target));
    if (leftBehind)
        ::unlink(link.constData());
    if (::symlink(QFile::encodeName(m_devicePath).constData(), link.constData()) != 0)
        return fail(u"cannot make the link %1"_s.arg(linkPath));
    m_linkPath = linkPath;
    return true;
}

bool PseudoTerminal::fail(const QString &what)
{
    m_error = u"%1: %2"_s.arg(what, QString::fromLocal8Bit(std::strerror(errno)));
    return false;
}

void PseudoTerminal::readMaster()
{
    std::array<char, 16384> buffer;
    const ssize_t length = ::read(m_master, buffer.data(), buffer.size());
    if (length > 0) {
        // Last, since a listener may close or even delete this object.
        emit received(QByteArray(buffer.data(), length));
    } else if (length == 0 || (errno != EAGAIN && errno != EINTR)) {
        fail(u"cannot read %1"_s.arg(m_devicePath));
        m_notifier->setEnabled(false);
    }
}

bool PseudoTerminal::write(const QByteArray &message)
{
    if (!isOpen() || m_queuedBytes + message.size() > QueueLimitBytes) {
        ++m_dropped;
        return false;
    }
    if (message.isEmpty())
        return true;
    m_queue.push_back({message, QDeadlineTimer(UnreadMs)});
    m_queuedBytes += message.size();
    sendQueued();
    return true;
}

void PseudoTerminal::sendQueued()
{
    while (!m_queue.empty()) {
        const QByteArray &first = m_queue.front().bytes;
        const ssize_t length =
            ::write(m_master, first.constData() + m_sentOfFirst, size_t(first.size() - m_sentOfFirst));
        if (length <= 0)
            break;
        m_sentOfFirst += length;
        m_queuedBytes -= length;
        if (m_sentOfFirst == first.size()) {
            m_queue.pop_front();
            m_sentOfFirst = 0;
        }
    }
    dropUnread();
    if (m_queue.empty())
        m_retry.stop();
    else if (!m_retry.isActive())
        m_retry.start();
}

void PseudoTerminal::dropUnread()
{
    // A message that is partly out must be finished, or its head would run into the next one.
    const auto begin = m_queue.begin() + (m_sentOfFirst > 0 ? 1 : 0);
    auto end = begin;
    for (; end != m_queue.end() && end->until.hasExpired(); ++end)
        m_queuedBytes -= end->bytes.size();
    m_dropped += end - begin;
    m_queue.erase(begin, end);
}
