#pragma once

#include <QVariantList>
#include <QVariantMap>

namespace DEV
{
class DeviceDb;
}

namespace TARVOORIXM1
{

// How a program is run on the subsystem that an .ipc file configures: the program to start and what
// it takes, as docs/host-interface.md describes it. A file of another IP than `ipId` is refused, if
// that is not empty. `dataPath` is the folder with the IP's registers; the program is looked for in
// the installation, or the build tree, that this folder belongs to. With an "error" nothing else
// counts.
QVariantMap simulationCommand(const QString &ipcFile, const QString &ipId, const QString &dataPath,
                              const DEV::DeviceDb &devices);

// The examples in the folder that run without any change, a map each: "title", "purpose" (a
// sentence), "configuration" (full path), "files" (full paths), "input" (of simulationCommand())
// and "program" (which of the files). Empty where they are not installed.
QVariantList simulationExamples(const QString &dataPath);

} // namespace TARVOORIXM1
