#pragma once

#include "format.h"

#include <QStringList>

namespace TARVOORIXM1
{

// Test benches in Verilog, in VHDL and for cocotb: clock, reset, and a script of first accesses
// that the processor's bus-functional model plays and checks. None without the models.
QVector<ExportedFile> testbenchFiles(const SystemMap &map);

// What lists of sources and builds need of them.
namespace BenchName
{

QString verilogModule(const SystemMap &map);
// The argument of a simulation that names the script of this subsystem, without "+" and "=".
QString scriptArgument(const SystemMap &map);
// Paths below the folder that is exported to.
QString script(const SystemMap &map);
// The bench first, since it sets the time scale, then the processor's model. None where there is no
// bench.
QStringList verilogSources(const SystemMap &map);

} // namespace BenchName

} // namespace TARVOORIXM1
