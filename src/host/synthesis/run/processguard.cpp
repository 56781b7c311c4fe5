#include "processguard.h"

#include <QVector>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <fcntl.h>
#include <iterator>
#include <poll.h>
#include <sched.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/signalfd.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Synthesis
{

namespace
{

constexpr int longestGoodbye = 5000; // ms that the guard waits for killed processes to go

// One message from the guard.
struct Report {
    ProcessGuard::Event event;
    int value;
};

// What the guard needs, made before it is there: after fork() only calls that are safe in a signal
// handler may follow, since the parent may have threads.
struct Prepared {
    const char *path;
    char *const *arguments;
    char *const *environment;
    const char *folder;
    char *const *removal; // arguments of the program that removes a folder; null: none
    pid_t parent;
    bool isIdle;
    bool hasErrors;
};

// Good while the texts live.
QVector<char *> pointersTo(const QByteArrayList &texts, QVector<char *> pointers = {})
{
    for (const QByteArray &text : texts)
        pointers << const_cast<char *>(text.constData());
    pointers << nullptr;
    return pointers;
}

void closeRange(unsigned first, unsigned last)
{
    if (first > last)
        return;
#ifdef SYS_close_range
    if (::syscall(SYS_close_range, first, last, 0) == 0)
        return;
#endif
    const long limit = ::sysconf(_SC_OPEN_MAX);
    const unsigned end = limit < 0 || limit > 65536 ? 65536 : unsigned(limit);
    for (unsigned fd = first; fd < end && fd <= last; ++fd)
        ::close(int(fd));
}

// All file descriptors but these, which are 3 or more; -1 is none.
void closeAllBut(int a, int b, int c)
{
    int kept[] = {a, b, c};
    std::sort(std::begin(kept), std::end(kept));
    unsigned from = 0;
    for (const int fd : kept) {
        if (fd < 0)
            continue;
        if (unsigned(fd) > from)
            closeRange(from, unsigned(fd) - 1);
        from = unsigned(fd) + 1;
    }
    closeRange(from, ~0U);
}

// Clear of the three that the program is given.
int raised(int fd)
{
    return fd < 0 ? -1 : ::fcntl(fd, F_DUPFD_CLOEXEC, 3);
}

[[noreturn]] void becomeProgram(const Prepared &program, pid_t guard, int output, int problem)
{
    ::setpgid(0, 0);
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    // The guard may have died before the request above.
    if (::getppid() != guard)
        ::_exit(127);
    if (program.isIdle) {
        // What a system does not allow only makes the program faster.
        const sched_param lowest = {};
        ::sched_setscheduler(0, SCHED_IDLE, &lowest);
        ::setpriority(PRIO_PROCESS, 0, 19);
    }
    if (::dup2(output, STDOUT_FILENO) >= 0 &&
        (!program.hasErrors || ::dup2(output, STDERR_FILENO) >= 0) &&
        ::chdir(program.folder) == 0) {
        sigset_t none;
        sigemptyset(&none);
        ::sigprocmask(SIG_SETMASK, &none, nullptr);
        ::execve(program.path, program.arguments, program.environment);
    }
    const int number = errno;
    [[maybe_unused]] const ssize_t written = ::write(problem, &number, sizeof number);
    ::_exit(127);
}

// The guard itself.
class Guard
{
public:
    Guard(const Prepared &program, int channel)
        : m_program(program)
        , m_channel(channel)
    {
    }

    [[noreturn]] void run(int output)
    {
        // The first three, which the program takes over.
        if (::open("/dev/null", O_RDWR) < 0 || ::dup(STDIN_FILENO) < 0 || ::dup(STDIN_FILENO) < 0)
            leave(ProcessGuard::Event::NotStarted, errno);
        int problem[2];
        sigset_t children;
        sigemptyset(&children);
        sigaddset(&children, SIGCHLD);
        const int ended = ::signalfd(-1, &children, SFD_CLOEXEC | SFD_NONBLOCK);
        if (ended < 0 || ::pipe2(problem, O_CLOEXEC) != 0)
            leave(ProcessGuard::Event::NotStarted, errno);
        // Orphans of the group come to the guard, so that it sees them go.
        ::prctl(PR_SET_CHILD_SUBREAPER, 1);
        const pid_t self = ::getpid();
        m_group = ::fork();
        if (m_group == 0)
            becomeProgram(m_program, self, output, problem[1]);
        if (m_group < 0)
            leave(ProcessGuard::Event::NotStarted, errno);
        ::setpgid(m_group, m_group);
        say(ProcessGuard::Event::Started, m_group);
        ::close(output);
        ::close(problem[1]);
        for (;;) {
            pollfd watched[] = {{m_channel, POLLIN, 0}, {ended, POLLIN, 0}};
            if (::poll(watched, 2, -1) < 0 && errno != EINTR)
                bury();
            if (watched[0].revents != 0)
                obey();
            signalfd_siginfo ignored;
            while (::read(ended, &ignored, sizeof ignored) > 0)
                continue;
            int status = 0;
            if (::waitpid(m_group, &status, WNOHANG) != m_group)
                continue;
            int number = 0;
            const bool started = ::read(problem[0], &number, sizeof number) != sizeof number;
            bury();
            leave(started ? ProcessGuard::Event::Ended : ProcessGuard::Event::NotStarted,
                  started ? status : number);
        }
    }

private:
    void say(ProcessGuard::Event event, int value)
    {
        const Report report = {event, value};
        ::send(m_channel, &report, sizeof report, MSG_NOSIGNAL);
    }

    [[noreturn]] void leave(ProcessGuard::Event event, int value)
    {
        say(event, value);
        ::_exit(0);
    }

    void obey()
    {
        int signal = 0;
        const ssize_t size = ::recv(m_channel, &signal, sizeof signal, MSG_DONTWAIT);
        if (size < 0 && (errno == EAGAIN || errno == EINTR))
            return;
        if (size != ssize_t(sizeof signal)) { // the parent is gone
            bury();
            if (m_program.removal) {
                buryOrphans();
                ::execve(m_program.removal[0], m_program.removal, m_program.environment);
            }
            ::_exit(0);
        }
        ::kill(-m_group, signal);
    }

    // Kills the group and waits until nothing is left of it.
    void bury()
    {
        ::kill(-m_group, SIGKILL);
        for (int waited = 0; waited < longestGoodbye; ++waited) {
            while (::waitpid(-m_group, nullptr, WNOHANG) > 0)
                continue;
            if (::kill(-m_group, SIGKILL) != 0 && errno == ESRCH)
                return;
            ::poll(nullptr, 0, 1);
        }
    }

    // Waits for guards of the program's own, which write until they have killed what they guard.
    static void buryOrphans()
    {
        for (int waited = 0; waited < longestGoodbye; ++waited) {
            pid_t gone = 0;
            while ((gone = ::waitpid(-1, nullptr, WNOHANG)) > 0)
                continue;
            if (gone < 0 && errno == ECHILD)
                return;
            ::poll(nullptr, 0, 1);
        }
    }

    const Prepared &m_program;
    const int m_channel;
    pid_t m_group = -1;
};

[[noreturn]] void guard(const Prepared &program, int channel, int output, int kept)
{
    // No key of the terminal ends it. Signals stay blocked: what asks the parent to end is the
    // parent's affair. The program gets neither the parent's handlers nor what it ignores.
    ::setsid();
    for (int number = 1; number < NSIG; ++number)
        ::signal(number, SIG_DFL);
    channel = raised(channel);
    output = raised(output);
    kept = raised(kept);
    if (channel < 0 || output < 0)
        ::_exit(127);
    closeAllBut(channel, output, kept);
    if (::getppid() != program.parent)
        ::_exit(0);
    Guard(program, channel).run(output);
}

} // namespace

int ProcessGuard::start(const Program &program, int output, int kept)
{
    const QVector<char *> arguments =
        pointersTo(program.arguments, {const_cast<char *>(program.path.constData())});
    const QVector<char *> environment = pointersTo(program.environment);
    const QByteArrayList removalArguments = {"/bin/rm", "-rf", "--", program.doomedFolder};
    const QVector<char *> removal = pointersTo(removalArguments);
    const Prepared prepared = {program.path.constData(),
                               arguments.constData(),
                               environment.constData(),
                               program.folder.constData(),
                               program.doomedFolder.isEmpty() ? nullptr : removal.constData(),
                               ::getpid(),
                               program.isIdle,
                               program.hasErrors};
    int ends[2];
    if (::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends) != 0)
        return errno;
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    ::pthread_sigmask(SIG_SETMASK, &all, &before);
    m_child = ::fork();
    if (m_child == 0)
        guard(prepared, ends[0], output, kept);
    const int number = errno;
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
    ::close(ends[0]);
    if (m_child > 0) {
        m_channel = ends[1];
        return 0;
    }
    ::close(ends[1]);
    return number;
}

ProcessGuard::~ProcessGuard()
{
    if (m_channel >= 0)
        ::close(m_channel);
    if (m_child > 0) {
        while (::waitpid(m_child, nullptr, 0) < 0 && errno == EINTR)
            continue;
    }
}

ProcessGuard::Event ProcessGuard::next(int *value)
{
    Report report = {Event::Nothing, 0};
    const ssize_t size = ::recv(m_channel, &report, sizeof report, MSG_DONTWAIT);
    if (size < 0 && (errno == EAGAIN || errno == EINTR))
        return Event::Nothing;
    if (size != ssize_t(sizeof report)) {
        // The program itself is gone with the guard, but not what it has started.
        if (m_group > 1)
            ::kill(-m_group, SIGKILL);
        m_group = -1;
        return Event::Lost;
    }
    *value = report.value;
    m_group = report.event == Event::Started ? report.value : -1;
    return report.event;
}

void ProcessGuard::order(int signal)
{
    // Fits into the channel's buffer. A guard that somebody has killed must not take this process
    // along.
    [[maybe_unused]] const ssize_t sent =
        ::send(m_channel, &signal, sizeof signal, MSG_NOSIGNAL | MSG_DONTWAIT);
}

} // namespace Synthesis
