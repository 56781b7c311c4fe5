#pragma once

#include "dev_global.h"
#include "deviceresources.h"

#include <QMetaType>
#include <QString>

namespace DEV
{

// One orderable FPGA device: a die, its version, a package and a speed grade. A plain value; a
// default-constructed one is null.
class TARVO_DEV_EXPORT DeviceArg
{
public:
    DeviceArg() = default;

    // `device` is the full device name ("TV2KR-18C"), `deviceN` the name without the version
    // ("TV2KR-18"), `deviceNVersion` the version ("C", or empty).
    DeviceArg(const QString &device, const QString &deviceN, const QString &deviceNVersion,
              const QString &package, const QString &speed, const QString &partNumber);

    // "TV2KR-18C-QFN88P-C8/I7": device, package and speed grade; unique in a database.
    QString id() const { return m_id; }
    QString device() const { return m_device; }
    QString deviceN() const { return m_deviceN; }
    QString deviceNVersion() const { return m_deviceNVersion; }
    QString package() const { return m_package; }
    QString speed() const { return m_speed; }
    QString partNumber() const { return m_partNumber; }
    // The name up to the hyphen ("TV2KR").
    QString series() const;

    // The same for all packages and speed grades of a die.
    DeviceResources resources() const { return m_resources; }
    void setResources(const DeviceResources &resources) { m_resources = resources; }

    bool isNull() const { return m_id.isEmpty(); }
    bool operator==(const DeviceArg &other) const
    {
        return m_id == other.m_id && m_partNumber == other.m_partNumber;
    }
    bool operator!=(const DeviceArg &other) const { return !(*this == other); }

private:
    QString m_id;
    QString m_device;
    QString m_deviceN;
    QString m_deviceNVersion;
    QString m_package;
    QString m_speed;
    QString m_partNumber;
    DeviceResources m_resources;
};

} // namespace DEV

Q_DECLARE_METATYPE(DEV::DeviceArg)
