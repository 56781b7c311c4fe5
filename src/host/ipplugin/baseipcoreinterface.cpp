#include "baseipcoreinterface.h"

#include "tr.h"

namespace TE
{
namespace TE_IPCore_Def
{

namespace
{

QString notScriptable(const QString &name)
{
    return Tr::tr("The IP \"%1\" cannot be scripted.").arg(name);
}

} // namespace

BaseIPCoreInterface::BaseIPCoreInterface() = default;
BaseIPCoreInterface::~BaseIPCoreInterface() = default;

bool BaseIPCoreInterface::createByTcl(QVariantMap &, const DEV::DeviceArg &, QStringList &errors)
{
    errors.append(notScriptable(name()));
    return false;
}

QVariantMap BaseIPCoreInterface::getIpinfoMap()
{
    return {};
}

QVariantMap BaseIPCoreInterface::getOptionMap()
{
    return {};
}

bool BaseIPCoreInterface::openByTcl(const QString &, const QString &, QVariantMap &,
                                    QStringList &errors)
{
    errors.append(notScriptable(name()));
    return false;
}

} // namespace TE_IPCore_Def
} // namespace TE
