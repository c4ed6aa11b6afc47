#include "childprocess.h"

#include <QByteArrayList>
#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

std::vector<char *> pointersTo(QByteArrayList &texts)
{
    std::vector<char *> pointers;
    for (QByteArray &text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

double milliseconds(const timeval &time)
{
    return double(time.tv_sec) * 1e3 + double(time.tv_usec) / 1e3;
}

} // namespace

// QProcess does not tell what the program used.
ChildProcess ChildProcess::run(const QString &program, const QStringList &arguments,
                               const QProcessEnvironment &environment)
{
    constexpr double KibibytesPerMegabyte = 1e6 / 1024;
    QByteArrayList words{QFile::encodeName(program)};
    for (const QString &argument : arguments)
        words += QFile::encodeName(argument);
    QByteArrayList variables;
    for (const QString &variable : environment.toStringList())
        variables += variable.toLocal8Bit();

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t child = 0;
    const int error = posix_spawn(&child, words.first().constData(), &actions, nullptr,
                                  pointersTo(words).data(), pointersTo(variables).data());
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0)
        return {};
    int status = 0;
    rusage used{};
    while (wait4(child, &status, 0, &used) < 0) {
        if (errno != EINTR)
            return {};
    }
    return {WIFEXITED(status) && WEXITSTATUS(status) == 0,
            milliseconds(used.ru_utime) + milliseconds(used.ru_stime),
            double(used.ru_maxrss) / KibibytesPerMegabyte};
}
