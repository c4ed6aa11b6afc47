#pragma once

#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <csignal>

#include <sys/resource.h>
#include <unistd.h>

/// While it lives, a write beyond so many bytes of a file fails as on a full disk.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    Q_DISABLE_COPY_MOVE(FileSizeLimit)

private:
    rlimit m_before{};
    void (*m_handler)(int) = SIG_DFL;
};

#ifdef Q_OS_LINUX
/// While it lives, permissions of files count for the administrator too.
class OrdinaryUser
{
public:
    OrdinaryUser() { setresuid(m_user, m_user, m_before); }
    ~OrdinaryUser() { setresuid(m_before, m_before, m_before); }
    Q_DISABLE_COPY_MOVE(OrdinaryUser)

private:
    static constexpr uid_t Nobody = 65534;
    const uid_t m_before = geteuid();
    const uid_t m_user = m_before == 0 ? Nobody : m_before;
};
#endif
#endif
