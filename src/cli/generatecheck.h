#pragma once

#include "prefixchoice.h"

#include <QString>

namespace Cli
{

class Environment;

struct GenerateArguments {
    QString file;
    QString outDir; // empty: the file's folder
    bool synthesise = true;
    bool json = false;
    bool verbose = false;
    bool check = false;  // only tell how the files stand
    bool dryRun = false; // only tell what a run would do
    bool diff = false;   // and what would change in the files
    bool force = false;  // run, whatever stands there
    bool cache = true;
    PrefixChoice prefix;
};

// Tells how the files of a generation stand and returns the exit status; writes nothing.
int runGenerateCheck(Environment &environment, const GenerateArguments &arguments);

} // namespace Cli
