#include "generationfolder.h"

#include "config/latin1literal.h"

namespace TARVOORIXM1
{

QString generationFolder(const QString &createInPath)
{
    return createInPath + "/temp/"_l1 + "tv_orix_m1"_l1;
}

} // namespace TARVOORIXM1
