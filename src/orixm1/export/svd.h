#pragma once

#include "format.h"

namespace TARVOORIXM1
{

// The register description "tarvo_orix_m1.svd". It always holds the processor's system control
// space, to which the interrupts of all that has no registers here belong.
QVector<ExportedFile> svdFiles(const SystemMap &map);

} // namespace TARVOORIXM1
