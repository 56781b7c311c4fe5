#include "tarvoorixm1package.h"

#include "tarvoorixm1.h"

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

} // namespace TARVOORIXM1
