#pragma once

#include "format.h"

namespace TARVOORIXM1
{

// "tarvo_orix_m1.dtsi", a tree that compiles alone, and "tarvo_orix_m1-overlay.dts", the skeleton
// of what a board says of it.
QVector<ExportedFile> devicetreeFiles(const SystemMap &map);

} // namespace TARVOORIXM1
