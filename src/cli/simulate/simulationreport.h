#pragma once

#include "../commands.h"
#include "simulationend.h"

#include <system/systemmap.h>

#include <QByteArray>
#include <QStringList>

namespace Cli
{

// What is told of a simulation that has ended.
struct SimulationReport {
    const SimulateArguments &arguments;
    const TARVOORIXM1::SystemMap &map;
    const SimulationEnd &end;
};

// Why it did not pass, a clause without a full stop; may be empty.
QString reasonOf(const SimulationEnd &end);

// "passed", "failed", "time limit", "cancelled"
QString nameOf(SimulationEnd::Result result);

// The exit status that belongs to it.
int statusOf(const SimulationEnd &end);

// For people: a sentence a line.
QStringList summaryOf(const SimulationReport &report);

// The file that --report names, a JSON document.
QByteArray documentOf(const SimulationReport &report);

} // namespace Cli
