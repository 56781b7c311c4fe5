#pragma once

#include "format.h"

namespace TARVOORIXM1
{

// Waivers for Verilator by rule and file, with the reason of each: with them the RTL gives no
// warning under -Wall. None where the data folder has no RTL.
QVector<ExportedFile> lintFiles(const SystemMap &map);

} // namespace TARVOORIXM1
