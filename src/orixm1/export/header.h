#pragma once

#include "format.h"

namespace TARVOORIXM1
{

// The device header "tarvo_orix_m1.h" for C99 and C++11. Macros have the names and values that
// registersHeader() gives them. Names that a program knows already, or that would come twice, are
// given as UniqueNames does, with regard to case; the macro of an instance whose name has no
// capital letter has an underscore behind it.
QVector<ExportedFile> headerFiles(const SystemMap &map);
// Its text as it is without a prefix, whatever the map has.
QByteArray usualHeader(const SystemMap &map);

} // namespace TARVOORIXM1
