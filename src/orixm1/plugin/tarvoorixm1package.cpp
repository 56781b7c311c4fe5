#include "tarvoorixm1package.h"

#include "movetodevice.h"
#include "tarvoorixm1.h"

#include <core/idecore.h>

#include <memory>

namespace TARVOORIXM1
{

QList<TE::TE_IPCore_Def::BaseIPCoreInterface *> TarvoOrixM1Package::ipCoreInterfaces()
{
    auto core = std::make_unique<TarvoOrixM1>(dataPath());
    if (!core->initialize())
        return {};
    return {core.release()};
}

QVariantMap TarvoOrixM1Package::moveToDevice(const QString &ipcFile, const QString &deviceId,
                                             bool write)
{
    TarvoOrixM1 core(dataPath());
    const QString id = core.initialize() ? core.id() : QString();
    return TARVOORIXM1::moveToDevice(ipcFile, deviceId, write, id,
                                     *Core::IdeCore::deviceDataBase());
}

} // namespace TARVOORIXM1
