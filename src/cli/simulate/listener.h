#pragma once

#include "simulationend.h"

#include <QString>

namespace Cli
{

// Hears what happens while a simulation runs. Each call does nothing unless it is overridden.
class Listener
{
public:
    virtual ~Listener() = default;

    // The subsystem has sent a byte.
    virtual void uartSent(int number, char byte)
    {
        Q_UNUSED(number)
        Q_UNUSED(byte)
    }
    // What the program or the simulator says; `endsLine`: a line end follows.
    virtual void said(const QString &text, bool endsLine)
    {
        Q_UNUSED(text)
        Q_UNUSED(endsLine)
    }
    // The pins of the GPIO have changed: what they show, and which ones the subsystem drives.
    virtual void pinsChanged(quint32 levels, quint32 driven)
    {
        Q_UNUSED(levels)
        Q_UNUSED(driven)
    }
    // A check of a script has failed, or a line of it is none.
    virtual void checkFailed(const ScriptFailure &failure) { Q_UNUSED(failure) }
    // Now and then: clock cycles from the end of the power-on reset.
    virtual void timePassed(quint64 cycles) { Q_UNUSED(cycles) }
};

} // namespace Cli
