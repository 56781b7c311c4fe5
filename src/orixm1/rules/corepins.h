#pragma once

#include "config/optionmap.h"

#include <utils/pinfigure.h>

#include <QList>

namespace TARVOORIXM1
{

// The choices that the core's pins follow from.
struct CoreSwitches {
    bool debug = false;
    bool jtag = false; // the JTAG port, alone or with Serial Wire; counts with `debug` only
    bool externalInterrupts = false;
    bool externalInstructionMemory = false;
    bool externalDataMemory = false;
};

// The core's pins in the order in which a figure draws them.
QList<Utils::PinFigure> corePins(const CoreSwitches &switches);

// What generation makes of a stored configuration, with its defaults for absent keys:
// an external memory counts only where the internal one is not chosen as well, and external
// interrupts count whatever the number of interrupts is. A configuration that the core page has
// written is never in doubt: it has exactly one of the two memories, and no external interrupts
// with less than 16 interrupts.
CoreSwitches coreSwitches(const OptionMap &options);

} // namespace TARVOORIXM1
