#pragma once

#include "livereader.h"

namespace Workbench
{

// How far a run is, in words. A plain value that follows the events.
struct SimulationState {
    enum Phase { Idle, Running, Stopping, Ended };

    Phase phase = Idle;
    QString stage; // as the event names it
    quint64 clockCycles = 0;
    quint32 levels = 0;
    quint32 driven = 0;
    LiveEvent end; // in the phase Ended

    bool isActive() const { return phase == Running || phase == Stopping; }
    void take(const LiveEvent &event);

    // What is being done, and how far it is; empty before the first run. `clock`: clock cycles a
    // second.
    QString progress(int clock) const;
    // What became of it, in one sentence; empty before the end.
    QString result() const;

    // "12.35 ms", from the clock cycles.
    static QString simulatedTime(quint64 clockCycles, int clock);
};

} // namespace Workbench
