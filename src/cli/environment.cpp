#include "environment.h"

#include "output.h"

#include <config/descriptor.h>
#include <config/optionkeys.h>
#include <utils/descriptor.h>

#include <QCoreApplication>
#include <QDir>

namespace Cli
{

using namespace TARVOORIXM1;

QString Environment::dataFolder() const
{
    // The build tree and an installation are laid out alike.
    return m_dataFolder.isEmpty() ? QDir::cleanPath(QCoreApplication::applicationDirPath() +
                                                    QLatin1String("/../share/tarvo/tarvo_orix_m1"))
                                  : QDir::cleanPath(QDir(m_dataFolder).absolutePath());
}

QVariantMap Environment::ipInfo()
{
    if (!m_ipInfo.isEmpty())
        return m_ipInfo;
    const QString folder = dataFolder();
    const QString path = descriptorPath(folder);
    QString error;
    QVariantMap info = Utils::readDescriptor(path, &error);
    if (info.isEmpty() && error.isEmpty())
        error = QLatin1String("The descriptor \"") + path + QLatin1String("\" holds nothing.");
    if (!info.isEmpty() && info.value(InfoKey::target).toString().isEmpty())
        error = QLatin1String("The descriptor \"") + path + QLatin1String("\" lacks \"") +
                InfoKey::target + QLatin1String("\".");
    if (!error.isEmpty()) {
        printError(error);
        return {};
    }
    addDataFolders(info, folder);
    m_ipInfo = info;
    return m_ipInfo;
}

const DEV::DeviceDb *Environment::devices()
{
    if (m_devices)
        return m_devices;
    if (m_deviceFolder.isEmpty()) {
        m_devices = &DEV::DeviceDb::bundled();
        return m_devices;
    }
    QString error;
    m_ownDevices = DEV::DeviceDb::fromFolder(m_deviceFolder, &error);
    if (m_ownDevices.isEmpty()) {
        printError(error);
        return nullptr;
    }
    m_devices = &m_ownDevices;
    return m_devices;
}

DEV::DeviceArg Environment::findDevice(const QString &idOrName, const QString &package,
                                       const QString &speed, QString *error)
{
    DEV::ChipFilter filter;
    filter.id = idOrName;
    const QList<DEV::DeviceArg> named = m_devices->filterDevice(filter);
    if (named.isEmpty()) {
        *error = QLatin1String("Unknown device \"") + idOrName +
                 QLatin1String("\"; \"orixm1 devices\" lists the known ones.");
        return {};
    }
    filter.package = package;
    filter.speed = speed;
    const QList<DEV::DeviceArg> found = m_devices->filterDevice(filter);
    if (!found.isEmpty())
        return found.first();
    QStringList offered;
    for (const DEV::DeviceArg &device : named)
        offered.append(device.id());
    *error = QLatin1String("\"") + idOrName + QLatin1String("\" does not exist with package \"") +
             package + QLatin1String("\" and speed grade \"") + speed +
             QLatin1String("\"; there are: ") + offered.join(QLatin1String(", "));
    return {};
}

} // namespace Cli
