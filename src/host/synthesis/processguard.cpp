#include "processguard.h"

#include <cerrno>
#include <csignal>
#include <initializer_list>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Synthesis
{

namespace
{

// Between fork() and the end only calls that are safe in a signal handler: the parent may have
// threads.
void closeAllBut(int keep)
{
#ifdef SYS_close_range
    if (::syscall(SYS_close_range, keep + 1, ~0U, 0) == 0 &&
        (keep == 0 || ::syscall(SYS_close_range, 0U, keep - 1, 0) == 0))
        return;
#endif
    const long limit = ::sysconf(_SC_OPEN_MAX);
    for (int fd = 0; fd < (limit < 0 || limit > 65536 ? 65536 : int(limit)); ++fd) {
        if (fd != keep)
            ::close(fd);
    }
}

// The child: takes the group, then waits for the end of the channel's other side.
[[noreturn]] void guard(int channel)
{
    ::setsid(); // no key of the terminal ends it
    closeAllBut(channel);
    // What asks the parent to end is the parent's affair.
    for (const int number : {SIGINT, SIGTERM, SIGHUP, SIGPIPE})
        ::signal(number, SIG_IGN);
    pid_t group = 0;
    for (;;) {
        pid_t received = 0;
        const ssize_t size = ::read(channel, &received, sizeof received);
        if (size == ssize_t(sizeof received))
            group = received;
        else if (size >= 0 || errno != EINTR)
            break;
    }
    if (group > 1)
        ::kill(-group, SIGKILL);
    ::_exit(0);
}

} // namespace

ProcessGuard::ProcessGuard()
{
    int ends[2];
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0)
        return;
    m_child = ::fork();
    if (m_child == 0) {
        ::close(ends[1]);
        guard(ends[0]);
    }
    ::close(ends[0]);
    if (m_child > 0)
        m_channel = ends[1];
    else
        ::close(ends[1]);
}

ProcessGuard::~ProcessGuard()
{
    if (m_child > 0) {
        ::kill(m_child, SIGKILL);
        while (::waitpid(m_child, nullptr, 0) < 0 && errno == EINTR)
            continue;
    }
    if (m_channel >= 0)
        ::close(m_channel);
}

void ProcessGuard::watch(pid_t group)
{
    if (m_channel < 0)
        return;
    // Fits into the channel's buffer, so it is sent at once and whole. A child that somebody has
    // killed must not take this process along, as a write would.
    [[maybe_unused]] const ssize_t sent = ::send(m_channel, &group, sizeof group, MSG_NOSIGNAL);
}

} // namespace Synthesis
