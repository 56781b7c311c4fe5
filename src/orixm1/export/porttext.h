#pragma once

#include "system/systemmap.h"

#include <QString>

namespace TARVOORIXM1
{

// How generated texts speak of ports.
namespace PortText
{

// "data written, of AHB1": what a comment says beside the name.
QString comment(const Port &port);
// "[31:0]"; empty for a single line.
QString verilogRange(const Port &port);
// "std_logic_vector(31 downto 0)"
QString vhdlType(const Port &port);
// Length of the longest name, for columns; 0 without a port.
int longestName(const SystemMap &map);

} // namespace PortText

} // namespace TARVOORIXM1
