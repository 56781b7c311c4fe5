#pragma once

#include "core/session.h"

#include <vpi_user.h>

#include <string>
#include <vector>

// What tasks of a Verilog simulator are made of.
namespace Vpi
{

// The arguments of the call that runs.
std::vector<vpiHandle> arguments();
int integer(vpiHandle argument);
std::string text(vpiHandle argument);
void setInteger(vpiHandle argument, int value);

void addTask(const char *name, PLI_INT32 (*call)(PLI_BYTE8 *));
// A function of type int; its call returns what returnInteger() returns.
void addFunction(const char *name, PLI_INT32 (*call)(PLI_BYTE8 *));
PLI_INT32 returnInteger(int number);
// Ends the simulation with a message, since a task was called in a wrong way.
PLI_INT32 refuseCall(const char *message);

// The simulator that has loaded this module.
CortexM1::Simulator &simulator();

} // namespace Vpi
