#pragma once

#include <QVariantMap>

namespace DEV
{
class DeviceDb;
}

namespace TARVOORIXM1
{

// What OK would do in the dialog of an IP with this configuration, which has the form of the
// dialog's configuration(): see docs/host-interface.md for the answer. Writes nothing of the
// user's. `dataPath` is the folder with the IP's descriptor and registers, `ipInfo` what the
// descriptor says, with the data folders.
QVariantMap previewGeneration(const QVariantMap &configuration, const QVariantMap &ipInfo,
                              const QString &dataPath, const DEV::DeviceDb &devices);

} // namespace TARVOORIXM1
