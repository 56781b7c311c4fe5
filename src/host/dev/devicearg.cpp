#include "devicearg.h"

namespace DEV
{

DeviceArg::DeviceArg(const QString &device, const QString &deviceN, const QString &deviceNVersion,
                     const QString &package, const QString &speed, const QString &partNumber)
    : m_id(device + u'-' + package + u'-' + speed)
    , m_device(device)
    , m_deviceN(deviceN)
    , m_deviceNVersion(deviceNVersion)
    , m_package(package)
    , m_speed(speed)
    , m_partNumber(partNumber)
{
}

QString DeviceArg::series() const
{
    return m_device.section(u'-', 0, 0);
}

} // namespace DEV
