#pragma once

#include "format.h"

namespace TARVOORIXM1
{

// What runs before main(): "startup_tarvo_orix_m1.c" with the vector table of exactly the
// interrupts that arrive, "system_tarvo_orix_m1.c" and its header. C99 without a C library; the
// linker script's symbols are all that it needs.
QVector<ExportedFile> startupFiles(const SystemMap &map);
// The one with the vector table.
QString startupFile(const SystemMap &map);

} // namespace TARVOORIXM1
