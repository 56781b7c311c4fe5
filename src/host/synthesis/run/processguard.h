#pragma once

#include <QByteArray>
#include <QByteArrayList>

#include <sys/types.h>

namespace Synthesis
{

// What is run, in the form that the system wants.
struct Program {
    QByteArray path;
    QByteArrayList arguments;   // without the name
    QByteArrayList environment; // "NAME=value"
    QByteArray folder;          // where it runs
    // A folder, by its full path, that goes when this process is gone and the program still ran;
    // empty: none.
    QByteArray doomedFolder;
    bool isIdle = false;   // gets the processor when nothing else wants it
    bool hasErrors = true; // its standard error goes where its output goes; else nowhere
};

// Runs a program in a process group of its own, and kills the group when this process is gone,
// however it ended: at whatever instant that happens, nothing stays.
//
// Works by a child process, the guard, which starts the program. It sees the end of this process
// from a channel between them, whose other side nobody else has; its own end takes the program
// along. It ends when nothing of the group is left.
class ProcessGuard
{
public:
    enum class Event {
        Nothing,    // for now
        Started,    // with the number of the group
        NotStarted, // with an error number
        Ended,      // with a status as of waitpid(); nothing of the group is left
        Lost,       // somebody has killed the guard, and so the program
    };

    ProcessGuard() = default;
    // Kills what still runs and waits until it is gone.
    ~ProcessGuard();
    ProcessGuard(const ProcessGuard &) = delete;
    ProcessGuard &operator=(const ProcessGuard &) = delete;

    // Once. The program writes to `output`; `kept`, a file descriptor or -1, stays open in the
    // guard until nothing of the group is left, but not in the program. Returns 0 or an error
    // number.
    int start(const Program &program, int output, int kept);

    // Becomes readable when there is an event.
    int channel() const { return m_channel; }
    // Does not wait.
    Event next(int *value);
    // Sends a signal to the group.
    void order(int signal);

private:
    pid_t m_child = -1;
    pid_t m_group = -1;
    int m_channel = -1;
};

} // namespace Synthesis
