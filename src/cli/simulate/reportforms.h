#pragma once

#include "simulationreport.h"

namespace Cli
{

// The forms of a report; see documentOf().
QByteArray jsonReport(const SimulationReport &report);
QByteArray textReport(const SimulationReport &report);
// A test suite of one test case. Its times are those of the simulated clock. Characters that XML
// does not have are written "\x1B".
QByteArray junitReport(const SimulationReport &report);

// Parts of them.
QVector<int> uartsOf(const TARVOORIXM1::SystemMap &map); // numbers
QString modelNote();
QString programName(const SimulateArguments &arguments);
// "reading 4 bytes at 0x90000000, in no block"
QString busErrorText(const TARVOORIXM1::RunDetails::BusError &error);

} // namespace Cli
