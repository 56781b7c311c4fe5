#pragma once

#include "output.h"

namespace CLI
{
class App;
class ParseError;
} // namespace CLI

namespace Cli
{

// What is wrong with a command line; for a command or an option that nobody knows with the one that
// it resembles.
Problem problemOf(const CLI::App &app, const CLI::ParseError &error);

} // namespace Cli
