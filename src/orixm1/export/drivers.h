#pragma once

#include "format.h"

namespace TARVOORIXM1
{

// The drivers "drivers/NAME.c" and "drivers/NAME.h" of the peripherals that are on.
QVector<ExportedFile> driverFiles(const SystemMap &map);

} // namespace TARVOORIXM1
