#include "drivers.h"

#include "config/latin1literal.h"

namespace TARVOORIXM1
{

QVector<ExportedFile> driverFiles(const SystemMap &map)
{
    QVector<ExportedFile> files;
    for (const FirmwareFile &file : map.firmware)
        files.append({"drivers/"_l1 + file.name, file.bytes});
    return files;
}

} // namespace TARVOORIXM1
