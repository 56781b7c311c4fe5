#pragma once

#include "synthesis_global.h"

#include <QString>

namespace Synthesis
{

// Writes a functional simulation model that is complete in itself: the Verilog netlist `netlist`
// followed by the models of the primitives that it instantiates. Replaces `destination` in one
// step.
//
// Returns 0 on success; otherwise another number, and one sentence with the path and the reason in
// `*message`.
TARVO_SYNTHESIS_EXPORT int writeSimulationModel(const QString &netlist, const QString &destination,
                                                QString *message);

} // namespace Synthesis
