#pragma once

#include <QVariantMap>

namespace DEV
{
class DeviceDb;
}

namespace TARVOORIXM1
{

// How a host has a configuration synthesised beside the dialog that it is made in, to see what it
// takes of the device: the program to start, what it takes, and the file that it works on, as
// docs/host-interface.md describes it. `configuration` as the dialog tells it. The program is
// looked for as in simulationCommand(). Writes nothing. With an "error" nothing else counts.
QVariantMap measureCommand(const QVariantMap &configuration, const QString &dataPath,
                           const DEV::DeviceDb &devices);

} // namespace TARVOORIXM1
