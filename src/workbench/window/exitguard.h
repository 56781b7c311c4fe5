#pragma once

#include <QString>

#include <functional>

namespace Workbench
{

// While it lives, a call of exit() is none of the program's own: a plug-in ends it. The last deed
// is done then, and the program ends with status 1 and a message. One at a time.
class ExitGuard
{
public:
    ExitGuard();
    ExitGuard(const ExitGuard &) = delete;
    ExitGuard &operator=(const ExitGuard &) = delete;
    ~ExitGuard();

    // Called in the middle of exit(), at whatever place that was called.
    void setLastDeed(const std::function<void()> &deed);

    // Until called again with 0: ends the program with status 1 and a message that names the file
    // after that many seconds, even if nothing runs any more.
    static void setDeadline(unsigned seconds, const QString &file);
};

} // namespace Workbench
