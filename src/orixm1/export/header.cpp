#include "header.h"

#include "registers/registerdocs.h"

namespace TARVOORIXM1
{

QVector<ExportedFile> headerFiles(const SystemMap &map)
{
    return {{QStringLiteral("tarvo_orix_m1.h"), registersHeader(map.peripherals, {}).toUtf8()}};
}

} // namespace TARVOORIXM1
