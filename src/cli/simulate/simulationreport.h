#pragma once

#include "simulatearguments.h"
#include "simulationend.h"

#include <simulation/rundetails.h>
#include <system/systemmap.h>

#include <QByteArray>
#include <QStringList>

#include <optional>

namespace Cli
{

// What is told of a simulation that has ended.
struct SimulationReport {
    const SimulateArguments &arguments;
    const TARVOORIXM1::SystemMap &map;
    const SimulationEnd &end;
    const std::optional<TARVOORIXM1::RunDetails> &details; // null if the model told nothing
};

// Why it did not pass, a clause without a full stop; may be empty.
QString reasonOf(const SimulationEnd &end);

// "passed", "failed", "time limit", "cancelled"
QString nameOf(SimulationEnd::Result result);

// The instruction at which it failed, locked up or met its limit; null if there is none of the
// program's own.
const TARVOORIXM1::RunPlace *failurePlaceOf(const SimulationReport &report);

// The exit status that belongs to it.
int statusOf(const SimulationEnd &end);

// For people: a sentence a line.
QStringList summaryOf(const SimulationReport &report);

// The file that --report names: for people with the suffix ".txt", for build servers (JUnit) with
// ".xml", otherwise a JSON document.
QByteArray documentOf(const SimulationReport &report, const QString &file);

} // namespace Cli
