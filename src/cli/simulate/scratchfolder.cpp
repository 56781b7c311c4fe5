#include "scratchfolder.h"

#include <utils/systemerror.h>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Cli
{

namespace
{

constexpr int mostAttempts = 100; // while others that are being killed still write
constexpr int attemptMs = 50;

// What follows runs between fork() and exec(): only calls that are safe in a signal handler.

void closeAllBut(int kept)
{
    if (kept > 0)
        ::close_range(0, unsigned(kept) - 1, 0);
    ::close_range(unsigned(kept) + 1, ~0U, 0);
}

void removeFolder(char *path)
{
    char *const arguments[] = {const_cast<char *>("/bin/rm"), const_cast<char *>("-rf"),
                               const_cast<char *>("--"), path, nullptr};
    char *const environment[] = {nullptr};
    struct stat info;
    for (int attempt = 0; attempt < mostAttempts && ::lstat(path, &info) == 0; ++attempt) {
        if (attempt > 0)
            ::poll(nullptr, 0, attemptMs);
        const pid_t child = ::fork();
        if (child == 0) {
            ::execve(arguments[0], arguments, environment);
            ::_exit(127);
        }
        while (child > 0 && ::waitpid(child, nullptr, 0) < 0 && errno == EINTR)
            continue;
    }
}

[[noreturn]] void keep(char *path, int channel)
{
    // No key of the terminal ends it. Signals stay blocked: they are the parent's affair.
    ::setsid();
    ::signal(SIGCHLD, SIG_DFL);
    closeAllBut(channel);
    const int number = ::mkdtemp(path) ? 0 : errno;
    bool isAlive = ::send(channel, &number, sizeof number, MSG_NOSIGNAL) == sizeof number &&
                   (number != 0 || ::send(channel, path, ::strlen(path), MSG_NOSIGNAL) > 0);
    if (number != 0)
        ::_exit(0);
    char byte;
    while (isAlive) {
        const ssize_t size = ::recv(channel, &byte, 1, 0);
        isAlive = size > 0 || (size < 0 && errno == EINTR);
    }
    removeFolder(path);
    ::_exit(0);
}

} // namespace

ScratchFolder::ScratchFolder(const QString &name)
{
    // Qt has no path for a folder that is not there.
    const QByteArray named = qgetenv("TMPDIR");
    const QString parent =
        QFileInfo(named.isEmpty() ? QDir::tempPath() : QFile::decodeName(named)).absoluteFilePath();
    QByteArray path = QFile::encodeName(parent + u'/' + name + QLatin1String("-XXXXXX"));
    const int number = start(path);
    if (number == 0)
        m_path = QFile::decodeName(path);
    else
        m_problem = QLatin1String("A folder in \"") + parent +
                    QLatin1String("\" could not be made: ") + Utils::systemError(number) + u'.';
}

int ScratchFolder::start(QByteArray &path)
{
    int ends[2];
    if (::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends) != 0)
        return errno;
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    ::pthread_sigmask(SIG_SETMASK, &all, &before);
    char *text = path.data();
    m_keeper = ::fork();
    if (m_keeper == 0)
        keep(text, ends[0]);
    int number = m_keeper < 0 ? errno : 0;
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
    ::close(ends[0]);
    m_channel = ends[1];
    const auto received = [this](void *bytes, size_t size) {
        ssize_t got;
        do
            got = ::recv(m_channel, bytes, size, 0);
        while (got < 0 && errno == EINTR);
        return got > 0 ? size_t(got) : 0;
    };
    if (number == 0 && received(&number, sizeof number) != sizeof number)
        number = ECHILD;
    if (number == 0 && received(text, size_t(path.size())) != size_t(path.size()))
        number = ECHILD;
    return number;
}

ScratchFolder::~ScratchFolder()
{
    if (m_channel >= 0)
        ::close(m_channel);
    while (m_keeper > 0 && ::waitpid(m_keeper, nullptr, 0) < 0 && errno == EINTR)
        continue;
}

} // namespace Cli
