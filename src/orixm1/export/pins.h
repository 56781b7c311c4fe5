#pragma once

#include "format.h"

namespace TARVOORIXM1
{

// A stub of constraints in Tcl: a line for each port, a vector's for each bit, that only becomes
// one when the user has filled in a pin.
QVector<ExportedFile> pinFiles(const SystemMap &map);

} // namespace TARVOORIXM1
