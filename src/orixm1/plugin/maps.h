#pragma once

#include <QVariantMap>

namespace DEV
{
class DeviceDb;
}

namespace TARVOORIXM1
{

// Pictures of what the configuration in an .ipc file makes, with places that lead into the files of
// exportSoftware(), as docs/host-interface.md describes them. A file of another IP than `ipId` is
// refused, if that is not empty. `dataPath` is the folder with the IP's registers. Writes nothing.
// With an "error", a sentence, there are no pictures.
QVariantMap maps(const QString &ipcFile, const QString &ipId, const QString &dataPath,
                 const DEV::DeviceDb &devices);

} // namespace TARVOORIXM1
