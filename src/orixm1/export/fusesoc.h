#pragma once

#include "format.h"

namespace TARVOORIXM1
{

// The subsystem as a FuseSoC core "tarvo_orix_m1.core" of the files of "rtl", "testbench", "lint"
// and "sdc", and in "fusesoc" the core of a generator that makes such a core of a configuration. No
// file without RTL.
QVector<ExportedFile> fusesocFiles(const SystemMap &map);

} // namespace TARVOORIXM1
