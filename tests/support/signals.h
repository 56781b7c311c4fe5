#pragma once

#include <QProcess>

#include <csignal>
#include <sys/types.h>

namespace TestSupport
{

// Sends a signal to a process. False, and nobody gets it, if the process has ended: its number is
// 0 then, which would be everybody in the group of the tests. Until its program runs it is a copy of
// the test, which would tell of a failure of its own; that is waited for.
inline bool sendSignal(QProcess &process, int signal)
{
    if (process.state() == QProcess::Starting)
        process.waitForStarted();
    const qint64 number = process.processId();
    return number > 0 && ::kill(pid_t(number), signal) == 0;
}

} // namespace TestSupport
