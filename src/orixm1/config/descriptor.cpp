#include "descriptor.h"

#include "latin1literal.h"
#include "optionkeys.h"

namespace TARVOORIXM1
{

QString descriptorPath(const QString &dataPath)
{
    return dataPath + "/tarvo_orix_m1.ipspec"_l1;
}

void addDataFolders(QVariantMap &ipInfo, const QString &dataPath)
{
    ipInfo[InfoKey::debug] = QString(dataPath + "/data/debug"_l1);
    ipInfo[InfoKey::noDebug] = QString(dataPath + "/data/no_debug"_l1);
}

} // namespace TARVOORIXM1
