#pragma once

namespace Cli
{

class CommandLine;

// Each declares one command: its arguments, its help and what runs it.
void declareNew(CommandLine &line);
void declareGenerate(CommandLine &line);
void declareProve(CommandLine &line);
void declareCheck(CommandLine &line);
void declareSources(CommandLine &line);
void declareRetarget(CommandLine &line);
void declarePins(CommandLine &line);
void declareRegisters(CommandLine &line);
void declareFirmware(CommandLine &line);
void declareExport(CommandLine &line);
void declareSimulate(CommandLine &line);
void declareOptions(CommandLine &line);
void declareDevices(CommandLine &line);
void declareCompletions(CommandLine &line);

} // namespace Cli
