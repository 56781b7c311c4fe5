#pragma once

#include "format.h"

namespace TARVOORIXM1
{

// What GNU ld needs: the script "tarvo_orix_m1.ld", the memories "tarvo_orix_m1_memory.ld", which
// it includes, and "memory.x", the memories under the names that start-up code written in Rust asks
// for. Where a configuration cannot start a program, linking ends with the reason.
QVector<ExportedFile> linkerFiles(const SystemMap &map);

} // namespace TARVOORIXM1
