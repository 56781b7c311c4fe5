#include "ipplugin.h"

#include "baseipcoreinterface.h"

namespace TE
{
namespace TE_IPCore_Def
{

IPPlugin::IPPlugin(QObject *parent)
    : QObject(parent)
{
}

IPPlugin::~IPPlugin() = default;

} // namespace TE_IPCore_Def
} // namespace TE
