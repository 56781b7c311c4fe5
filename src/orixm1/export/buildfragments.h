#pragma once

#include "format.h"

namespace TARVOORIXM1
{

// Fragments for builds with CMake and with make: lists of the sources, and rules that export and
// generate anew when the configuration has changed. Where the configuration stands is the user's to
// say; without the program or the configuration the lists serve alone.
QVector<ExportedFile> cmakeFiles(const SystemMap &map);
QVector<ExportedFile> makeFiles(const SystemMap &map);

} // namespace TARVOORIXM1
