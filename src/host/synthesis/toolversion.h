#pragma once

#include "runreport.h"
#include "synthesis_global.h"

#include <QString>

namespace Synthesis
{

// A tool as people call it ("Yosys").
TARVO_SYNTHESIS_EXPORT QString toolName(Tool tool);

// The program that a run would start, by its full path; empty if there is none on PATH.
TARVO_SYNTHESIS_EXPORT QString toolProgram(Tool tool);

// What that program says of its version, one line ("Yosys 0.23 (git …)"). Starts it and waits for
// it, at most a few seconds; empty if it does not tell.
TARVO_SYNTHESIS_EXPORT QString toolVersion(Tool tool);

} // namespace Synthesis
