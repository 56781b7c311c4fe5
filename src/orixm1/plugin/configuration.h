#pragma once

#include "config/optionmap.h"

#include "system/systemmap.h"

#include <dev/devicearg.h>
#include <utils/result.h>

#include <QString>
#include <QVariantMap>

namespace DEV
{
class DeviceDb;
}

namespace TARVOORIXM1
{

// What an .ipc file holds, as the host's requests beside the dialog need it.
struct Configuration {
    QString type;          // id of the IP that the file names
    QString deviceText;    // what the file says of its device
    DEV::DeviceArg device; // null: the file names none, or one that is not known
    OptionMap options;
    QVariantMap others; // entries that are neither options nor identity
};

// Reads a configuration of the IP `ipId`; empty: of any. A failure is a sentence that names the
// file and the reason.
Utils::Result<Configuration> readConfiguration(const QString &ipcFile, const QString &ipId,
                                               const DEV::DeviceDb &devices);

// The subsystem that such a file configures. `dataPath` is the folder with the IP's registers. A
// failure, a sentence, also where the file names no device or one that is not known.
Utils::Result<SystemMap> readSystem(const QString &ipcFile, const QString &ipId,
                                    const QString &dataPath, const DEV::DeviceDb &devices);

// The path as sentences name it.
QString shownPath(const QString &path);

} // namespace TARVOORIXM1
