#pragma once

#include <sys/types.h>

namespace Synthesis
{

// Kills a process group when this process dies in a way that leaves it no time to do so itself. A
// process that is told of a parent's death by the kernel is only the first of its group; whatever
// it has started would go on.
//
// Works by a child process that waits for the end of this one, which it sees from a channel between
// them.
class ProcessGuard
{
public:
    // Without a child (no process can be made) the group is merely not guarded.
    ProcessGuard();
    // Lets the group be.
    ~ProcessGuard();
    ProcessGuard(const ProcessGuard &) = delete;
    ProcessGuard &operator=(const ProcessGuard &) = delete;

    void watch(pid_t group);

private:
    pid_t m_child = -1;
    int m_channel = -1;
};

} // namespace Synthesis
