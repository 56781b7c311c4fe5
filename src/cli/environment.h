#pragma once

#include "output.h"

#include <dev/devicedb.h>

#include <QString>
#include <QVariantMap>

namespace Cli
{

// How a user names a device.
struct DeviceChoice {
    QString device; // id, name or part number
    QString package;
    QString speed;
};

// The data that the commands work with.
class Environment
{
public:
    // Options of the program; an empty text means the default.
    void setDataFolder(const QString &folder) { m_dataFolder = folder; }
    void setDeviceFolder(const QString &folder) { m_deviceFolder = folder; }

    // The IP's data folder.
    QString dataFolder() const;

    // Read on first use. On failure the message has been printed and the result is empty, or null.
    QVariantMap ipInfo();
    const DEV::DeviceDb *devices();

    // Finds the one device that a user means: by id, name or part number, narrowed by package and
    // speed grade (both may be empty); letter case counts only where it decides. Without a speed
    // grade it is the first of a package's. A failure if there is none or a choice is left, with
    // the choices. Needs devices().
    Utils::Result<DEV::DeviceArg> findDevice(const DeviceChoice &choice) const;
    // Why it found none, with the name that `choice` resembles if nobody knows it.
    Problem problemOf(const QString &reason, const DeviceChoice &choice) const;
    // What findDevice() has chosen for the user, in a sentence; empty if the text and the speed
    // grade left no choice.
    QString chosenSpeed(const DEV::DeviceArg &found, const DeviceChoice &choice) const;

private:
    QString m_dataFolder;
    QString m_deviceFolder;
    QVariantMap m_ipInfo;
    DEV::DeviceDb m_ownDevices;
    const DEV::DeviceDb *m_devices = nullptr;
};

} // namespace Cli
