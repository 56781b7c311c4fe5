#include "descriptor.h"

#include "optionkeys.h"

namespace TARVOORIXM1
{

QString descriptorPath(const QString &dataPath)
{
    return dataPath + QLatin1String("/tarvo_orix_m1.ipspec");
}

void addDataFolders(QVariantMap &ipInfo, const QString &dataPath)
{
    ipInfo[InfoKey::debug] = QString(dataPath + QLatin1String("/data/debug"));
    ipInfo[InfoKey::noDebug] = QString(dataPath + QLatin1String("/data/no_debug"));
}

} // namespace TARVOORIXM1
