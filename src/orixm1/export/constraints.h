#pragma once

#include "format.h"

namespace TARVOORIXM1
{

// Timing constraints "tarvo_orix_m1.sdc": the clocks, whose periods the user sets, the ports that
// no clock times, and for those that are sampled the flip-flops of the synchronizer, as the netlist
// names them.
QVector<ExportedFile> constraintFiles(const SystemMap &map);

} // namespace TARVOORIXM1
