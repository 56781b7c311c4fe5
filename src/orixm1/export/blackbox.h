#pragma once

#include "format.h"

namespace TARVOORIXM1
{

// The top module without contents, for designs that take the netlist later: Verilog, SystemVerilog,
// and VHDL-93 as a component in a package.
QVector<ExportedFile> blackboxFiles(const SystemMap &map);

} // namespace TARVOORIXM1
