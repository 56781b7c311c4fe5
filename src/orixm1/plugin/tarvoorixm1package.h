#pragma once

#include <ipplugin/ipplugin.h>

namespace TARVOORIXM1
{

// The root object of the plug-in library.
class TarvoOrixM1Package : public TE::TE_IPCore_Def::IPPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "TARVOORIXM1.TarvoOrixM1Package/1.0")
    Q_INTERFACES(TE::TE_IPCore_Def::IPPlugin)

public:
    QList<TE::TE_IPCore_Def::BaseIPCoreInterface *> ipCoreInterfaces() override;
};

} // namespace TARVOORIXM1
