#include "toolversion.h"

#include "flow/tools.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Synthesis
{

namespace
{

constexpr int longestWait = 5000; // ms
constexpr int longestText = 4096; // bytes

// What the process becomes that was made for the program. Nothing but calls of the system stands
// between fork() and here, and it ends with its owner, at whatever instant that is: a QProcess that
// has just been made waits for its owner for ever.
[[noreturn]] void become(char *const *arguments, int output, pid_t owner)
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    const int nothing = ::open("/dev/null", O_RDWR | O_CLOEXEC);
    if (::getppid() == owner && nothing >= 0 && ::dup2(nothing, STDIN_FILENO) >= 0 &&
        ::dup2(nothing, STDERR_FILENO) >= 0 && ::dup2(output, STDOUT_FILENO) >= 0)
        ::execv(arguments[0], arguments);
    ::_exit(127);
}

// What comes until the other end is closed, or the time is up, or it is too much.
QByteArray readAll(int input, const QDeadlineTimer &deadline)
{
    QByteArray bytes;
    char part[512];
    pollfd ready{input, POLLIN, 0};
    while (bytes.size() < longestText &&
           (::poll(&ready, 1, int(deadline.remainingTime())) > 0 || errno == EINTR)) {
        const ssize_t got = ::read(input, part, sizeof part);
        if (got == 0)
            return bytes;
        if (got > 0)
            bytes.append(part, int(got));
    }
    return {};
}

// The program's standard output; nothing if it does not end in time with 0.
QByteArray outputOf(const QString &program, const char *argument)
{
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0)
        return {};
    QByteArray path = QFile::encodeName(program);
    QByteArray option = argument;
    char *const arguments[] = {path.data(), option.data(), nullptr};
    const pid_t owner = ::getpid();
    const pid_t child = ::fork();
    if (child == 0)
        become(arguments, ends[1], owner);
    ::close(ends[1]);
    const QByteArray bytes =
        child > 0 ? readAll(ends[0], QDeadlineTimer(longestWait)) : QByteArray();
    ::close(ends[0]);
    if (child < 0)
        return {};
    if (bytes.isEmpty())
        ::kill(child, SIGKILL);
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? bytes : QByteArray();
}

} // namespace

QString toolName(Tool tool)
{
    return QLatin1String(toolRow(tool).name);
}

QString toolProgram(Tool tool)
{
    const QString path = QStandardPaths::findExecutable(QLatin1String(toolRow(tool).program));
    return path.isEmpty() ? QString() : QFileInfo(path).absoluteFilePath();
}

QString toolVersion(Tool tool)
{
    const char *argument = toolRow(tool).versionArgument;
    const QString program = toolProgram(tool);
    if (!argument || program.isEmpty())
        return {};
    return QString::fromUtf8(outputOf(program, argument).split('\n').constFirst()).simplified();
}

} // namespace Synthesis
