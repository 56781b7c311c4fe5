#include "interrupt.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/prctl.h>
#include <unistd.h>

namespace Utils
{

namespace
{

int wakePipe[2] = {-1, -1};
volatile std::sig_atomic_t isPending = 0;

extern "C" void wake(int signal)
{
    // Nobody has taken the one before: the event loop does not run any more.
    if (isPending) {
        std::signal(signal, SIG_DFL);
        std::raise(signal);
        return;
    }
    isPending = 1;
    const char byte = 1;
    // A full pipe has woken the reader already.
    [[maybe_unused]] const ssize_t written = ::write(wakePipe[1], &byte, 1);
}

void handle(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGTERM, &action, nullptr);
}

} // namespace

Interrupt::Interrupt(QObject *parent)
    : QObject(parent)
{
    if (::pipe2(wakePipe, O_CLOEXEC | O_NONBLOCK) != 0)
        return; // without the pipe the signals keep their default effect: they end the program
    m_notifier = std::make_unique<QSocketNotifier>(wakePipe[0], QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &Interrupt::onWoken);
    isPending = 0; // one that an earlier object did not take
    handle(wake);
}

Interrupt::~Interrupt()
{
    if (!m_notifier)
        return;
    handle(SIG_DFL);
    m_notifier.reset();
    ::close(wakePipe[0]);
    ::close(wakePipe[1]);
}

bool Interrupt::followParent(qint64 owner)
{
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
    return owner > 1 && (::kill(pid_t(owner), 0) == 0 || errno == EPERM);
}

void Interrupt::onWoken()
{
    char buffer[16];
    while (::read(wakePipe[0], buffer, sizeof buffer) > 0)
        continue;
    handle(SIG_DFL);
    isPending = 0;
    Q_EMIT received();
}

} // namespace Utils
