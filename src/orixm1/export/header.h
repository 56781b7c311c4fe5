#pragma once

#include "format.h"

namespace TARVOORIXM1
{

// The device header "tarvo_orix_m1.h" for C99 and C++11. Macros have the names and values that
// registersHeader() gives them. Names that a program knows already, or that would come twice, are
// given as UniqueNames does, with regard to case.
QVector<ExportedFile> headerFiles(const SystemMap &map);

} // namespace TARVOORIXM1
