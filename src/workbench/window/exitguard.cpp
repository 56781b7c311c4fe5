#include "exitguard.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace Workbench
{

namespace
{

bool armed = false;

std::function<void()> &lastDeed()
{
    // Never destroyed: needed while everything else is.
    static auto *const deed = new std::function<void()>;
    return *deed;
}

// The signal handler's, which may not make texts.
char deadlineMessage[1024];
size_t deadlineLength = 0;

extern "C" void endHere()
{
    if (!armed)
        return;
    armed = false;
    std::fprintf(stderr, "tarvo-workbench: A plug-in has ended the program.\n");
    if (lastDeed())
        lastDeed()();
    std::fflush(nullptr);
    ::_exit(1);
}

extern "C" void onDeadline(int)
{
    [[maybe_unused]] const ssize_t written = ::write(2, deadlineMessage, deadlineLength);
    ::_exit(1);
}

} // namespace

ExitGuard::ExitGuard()
{
    static const bool registered = std::atexit(endHere) == 0;
    armed = registered;
}

ExitGuard::~ExitGuard()
{
    armed = false;
    lastDeed() = nullptr;
}

void ExitGuard::setLastDeed(const std::function<void()> &deed)
{
    lastDeed() = deed;
}

void ExitGuard::setDeadline(unsigned seconds, const QString &file)
{
    ::alarm(0);
    if (seconds == 0)
        return;
    const QByteArray message =
        QStringLiteral("tarvo-workbench: the plug-in of \"%1\" did not answer within %2 s.\n")
            .arg(file, QString::number(seconds))
            .toUtf8()
            .right(int(sizeof deadlineMessage));
    std::copy(message.begin(), message.end(), deadlineMessage);
    deadlineLength = size_t(message.size());
    struct sigaction action = {};
    action.sa_handler = onDeadline;
    sigemptyset(&action.sa_mask);
    ::sigaction(SIGALRM, &action, nullptr);
    ::alarm(seconds);
}

} // namespace Workbench
