#pragma once

#include "simulationoffer.h"

#include <utils/result.h>

#include <QString>

namespace Workbench
{

// A project made of an example, which is the user's own; full paths.
struct ExampleProject {
    QString projectFile;
    QString configuration;
    QString program;

    // What the example's project is called.
    static QString nameOf(const SimulationExample &example);
    // A folder of that name in `location`, or of a name like it, that does not exist.
    static QString freeFolder(const SimulationExample &example, const QString &location);
    // Makes the folder, which must not exist, and copies the example into it; `target` is the name
    // that files of its IP have, as far as it is known. On a failure, a sentence, nothing is there.
    static Utils::Result<ExampleProject> make(const SimulationExample &example,
                                              const QString &folder, const QString &target);
};

} // namespace Workbench
