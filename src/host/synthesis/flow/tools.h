#pragma once

#include <synthesis/runreport.h>

#include <memory>

namespace Synthesis
{

class Flow;

// A synthesis tool: one row of each. Suffixes follow the target's name; null: no such output.
struct ToolRow {
    const char *name;    // as messages call it
    const char *program; // found on PATH
    bool usersHome; // has settings and licences in the user's home; else it gets one of its own
    std::unique_ptr<Flow> (*makeFlow)(const ToolRow &row, const Job &job);
    const char *versionArgument; // makes the program tell its version and end; null: there is none
    const char *netlist;         // Verilog
    const char *vhdlNetlist;
    const char *vhdlModel;
};

const ToolRow &toolRow(Tool tool);

// The flow of a tool for a job.
std::unique_ptr<Flow> makeFlow(Tool tool, const Job &job);

// The tool with this number, as it is kept in files; the platform's own for a number of none.
Tool toolOf(int number);

} // namespace Synthesis
