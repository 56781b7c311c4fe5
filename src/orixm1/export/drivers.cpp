#include "drivers.h"

#include "config/latin1literal.h"
#include "prefixed.h"
#include "sourcenames.h"

namespace TARVOORIXM1
{

QVector<ExportedFile> driverFiles(const SystemMap &map)
{
    QVector<ExportedFile> files;
    QSet<QByteArray> names;
    for (const FirmwareFile &file : map.firmware) {
        files.append({"drivers/"_l1 + file.name, file.bytes});
        if (file.name.endsWith(".h"_l1))
            names |= SourceNames::declaredInC(file.bytes);
    }
    return prefixedC(map, files, names);
}

} // namespace TARVOORIXM1
