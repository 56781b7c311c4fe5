#pragma once

#include "job.h"
#include "synthesis_global.h"

#include <QString>

namespace Synthesis
{

// Writes a functional simulation model that is complete in itself: the Verilog netlist `netlist`
// followed by the models of the primitives that it instantiates, with stand-ins in the modules that
// it leaves empty. What an earlier file has, by the macro HAVE_ and its name, is left out. Replaces
// `destination` in one step.
//
// Returns 0 on success; otherwise another number, and one sentence with the path and the reason in
// `*message`.
TARVO_SYNTHESIS_EXPORT int writeSimulationModel(const QString &netlist, const QString &destination,
                                                QString *message);

// The installed models of the primitives that netlists of the own tool are made of, without which
// no other tool reads these: one file for Verilog, one for VHDL. Full path; empty if the program
// has none beside it.
TARVO_SYNTHESIS_EXPORT QString primitiveLibrary(Language language);

} // namespace Synthesis
