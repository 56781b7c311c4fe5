#pragma once

#include "format.h"

namespace TARVOORIXM1
{

// Timing constraints "tarvo_orix_m1.sdc" of the ports that come without a clock: for each one the
// flip-flops of its synchronizer, as the netlist names them. No file without such a port.
QVector<ExportedFile> constraintFiles(const SystemMap &map);

} // namespace TARVOORIXM1
