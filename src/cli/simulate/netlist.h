#pragma once

#include "listener.h"

#include <generate/plan.h>
#include <utils/result.h>

#include <QString>

namespace Cli
{

class Simulation;

// Synthesises a plan for the own tool, whose include files are there, and writes the functional
// simulation model of the netlist to `destination`. A failure is a text; after a cancellation it is
// empty.
Utils::Result<void> makeNetlist(Simulation &simulation, const TARVOORIXM1::GenerationPlan &plan,
                                const QString &destination, Listener &listener);

} // namespace Cli
