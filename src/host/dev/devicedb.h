#pragma once

#include "chipfilter.h"
#include "devicearg.h"

#include <utils/result.h>

#include <QHash>
#include <QList>

namespace DEV
{

// The devices that the environment knows, in the order of the data files (sorted by file name).
//
// The folder holds one file per series, {"devices": [{"device", "version", "packages": [...],
// "speeds": [...], "resources": {...}}]}, and "packages.json", {"packageCodes": {"QFN88P":
// "QN88P"}}; docs/add-a-device.md describes them. A part number is the series, "-LV", the size, the
// package's code and the speed grade.
class TARVO_DEV_EXPORT DeviceDb
{
public:
    DeviceDb() = default;

    // Reads every *.json of a folder (a resource folder too) into a new database, which is not
    // empty. A file that cannot be read or is malformed gives a sentence that names the file and,
    // for a mistake in it, line and column.
    static Utils::Result<DeviceDb> fromFolder(const QString &folder);

    // The database that is built into this library; read on first use, lives as long as the
    // process.
    static DeviceDb &bundled();

    // The record with exactly this id; a null one if there is none.
    DeviceArg findDevice(const QString &id) const;

    // All records that match, in database order.
    QList<DeviceArg> filterDevice(const ChipFilter &filter) const;

    QList<DeviceArg> devices() const { return m_devices; }
    bool isEmpty() const { return m_devices.isEmpty(); }

private:
    Utils::Result<void> readSeries(const QString &path,
                                   const QHash<QString, QString> &packageCodes);

    QList<DeviceArg> m_devices;
    QHash<QString, int> m_indexById;
};

} // namespace DEV
