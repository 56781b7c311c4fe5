#pragma once

#include <QStringList>

namespace Cli
{

class CommandLine;

// Each declares one command: its arguments, its help and what runs it.
void declareNew(CommandLine &line);
void declareGenerate(CommandLine &line);
void declareProve(CommandLine &line);
void declareCheck(CommandLine &line);
void declareEstimate(CommandLine &line);
void declareSources(CommandLine &line);
void declareRetarget(CommandLine &line);
void declarePins(CommandLine &line);
void declareRegisters(CommandLine &line);
void declareFirmware(CommandLine &line);
void declareExport(CommandLine &line);
void declareSimulate(CommandLine &line);
void declareOptions(CommandLine &line);
void declareDevices(CommandLine &line);
void declarePresets(CommandLine &line);
void declareGet(CommandLine &line);
void declareSet(CommandLine &line);
void declareUnset(CommandLine &line);
void declareMinimize(CommandLine &line);
void declareUpgrade(CommandLine &line);
void declareShow(CommandLine &line);
void declareDiff(CommandLine &line);
void declareRandom(CommandLine &line);
void declareSchema(CommandLine &line);
void declareCompletions(CommandLine &line);

// The keys of all options, for completions.
QStringList knownKeys();

} // namespace Cli
