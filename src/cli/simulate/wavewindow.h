#pragma once

#include "simulatearguments.h"

#include <system/systemmap.h>
#include <utils/result.h>

#include <QStringList>

namespace Cli
{

// The arguments of the simulator for the part of a run that waves are wanted of; empty: all of it.
// What does not go together, or names nothing of the configuration, is a failure, a sentence.
Utils::Result<QStringList> waveArguments(const SimulateArguments &arguments,
                                         const TARVOORIXM1::SystemMap &map);

} // namespace Cli
