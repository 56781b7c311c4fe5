#pragma once

#include <atomic>

// The kinds of calls, as they are named in the environment.
inline constexpr const char *kinds[] = {"write", "fsync",  "rename", "open", "mkdir",
                                        "close", "unlink", "fork",   "exec"};

// What the preloaded library and the one who starts the program share, in a file that both map.
struct FaultState {
    std::atomic<int> counts[16]; // calls of each kind so far, in all processes of the programs
    std::atomic<int> fired;      // of those, the ones that were made to fail
    std::atomic<int> onFile;     // of those, the ones that would have changed a file
    std::atomic<int> main;       // the first process of the program
};

// Environment of the library:
//
// TARVO_FAULT_PROGRAMS  file names of the programs in which calls fail, parted by ":"
// TARVO_FAULT_KIND      one of those above; another one only counts
// TARVO_FAULT_AT        the number of the call that fails, from 1
// TARVO_FAULT_EFFECT    an error number, or one of the effects below
// TARVO_FAULT_LASTING   "1": all later calls of the kind fail too
// TARVO_FAULT_STATE     a file with a FaultState
enum FaultEffect {
    ShortCount = -1, // a write takes half of what it is given
    KillBefore = -2, // SIGKILL in place of the call
    KillAfter = -3,  // the call, then SIGKILL; a child just made waits until its parent is gone
    KillMain = -4,   // SIGKILL for the first process, and the caller stands still
};
