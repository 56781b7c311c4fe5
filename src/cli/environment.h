#pragma once

#include <dev/devicedb.h>

#include <QString>
#include <QVariantMap>

namespace Cli
{

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

    // Finds a device by id or name, narrowed by package and speed grade (both may be empty): the
    // first match in database order. Null if there is none, and `*error` then says why.
    DEV::DeviceArg findDevice(const QString &idOrName, const QString &package, const QString &speed,
                              QString *error);

private:
    QString m_dataFolder;
    QString m_deviceFolder;
    QVariantMap m_ipInfo;
    DEV::DeviceDb m_ownDevices;
    const DEV::DeviceDb *m_devices = nullptr;
};

} // namespace Cli
