#pragma once

#include "config/latin1literal.h"

#include <QString>

namespace TARVOORIXM1
{

// The command line, for hosts that run it.
inline constexpr QLatin1String commandProgramName = "orixm1"_l1;

// Its full path in the installation, or the build tree, that the folder with the IP's data belongs
// to; empty if it is not there.
QString commandProgram(const QString &dataPath);

} // namespace TARVOORIXM1
