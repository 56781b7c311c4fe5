#pragma once

#include "format.h"

namespace TARVOORIXM1
{

// Lists of the sources for synthesis and for simulation, relative to the folder of the export. They
// name files of the formats rtl and testbench. None where the data folder has no RTL.
QVector<ExportedFile> fileListFiles(const SystemMap &map);

} // namespace TARVOORIXM1
