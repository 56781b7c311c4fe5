#pragma once

#include "format.h"

namespace TARVOORIXM1
{

// The device header "tarvo_orix_m1.h".
QVector<ExportedFile> headerFiles(const SystemMap &map);

} // namespace TARVOORIXM1
