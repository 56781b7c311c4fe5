#include "descriptor.h"

#include "latin1literal.h"
#include "optionkeys.h"

namespace TARVOORIXM1
{

namespace
{

constexpr QLatin1String debugFolder = "/data/debug"_l1;

} // namespace

QString descriptorPath(const QString &dataPath)
{
    return dataPath + "/tarvo_orix_m1.ipspec"_l1;
}

void addDataFolders(QVariantMap &ipInfo, const QString &dataPath)
{
    ipInfo[InfoKey::debug] = QString(dataPath + debugFolder);
    ipInfo[InfoKey::noDebug] = QString(dataPath + "/data/no_debug"_l1);
}

QString dataFolder(const QVariantMap &ipInfo)
{
    const QString folder = ipInfo[InfoKey::debug].toString();
    return folder.endsWith(debugFolder) ? folder.chopped(debugFolder.size()) : QString();
}

} // namespace TARVOORIXM1
