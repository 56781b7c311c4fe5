#pragma once

namespace Cli
{

class CommandLine;

void declareSweep(CommandLine &line);

} // namespace Cli
