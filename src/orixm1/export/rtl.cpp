#include "rtl.h"

#include "config/latin1literal.h"
#include "names.h"

#include <QFileInfo>

namespace TARVOORIXM1
{

namespace
{

// The declaration of the processor without its contents.
constexpr QLatin1String processorFile = "cortex_m1_core.v"_l1;

QString pathOf(const QString &name)
{
    return RtlPath::includeFolder() + u'/' + name;
}

} // namespace

QVector<ExportedFile> rtlFiles(const SystemMap &map)
{
    QVector<ExportedFile> files;
    for (const HardwareFile &file : map.rtl)
        files.append({pathOf(file.name), file.bytes});
    if (files.isEmpty())
        return {};
    for (const DataFile &file : map.initialContents)
        files.append({RtlPath::contentsFolder(map) + u'/' + file.name, file.bytes});
    return files;
}

namespace RtlPath
{

QString includeFolder()
{
    return QStringLiteral("rtl");
}

QStringList compiled(const SystemMap &map)
{
    QStringList paths;
    for (const HardwareFile &file : map.rtl) {
        if (file.use == HardwareFile::Use::Compiled)
            paths.append(pathOf(file.name));
    }
    return paths;
}

QStringList simulated(const SystemMap &map)
{
    QStringList paths = compiled(map);
    paths.removeOne(pathOf(ownName(map, processorFile)));
    return paths;
}

QStringList included(const SystemMap &map)
{
    QStringList paths;
    for (const HardwareFile &file : map.rtl) {
        if (file.use != HardwareFile::Use::Compiled)
            paths.append(pathOf(file.name));
    }
    return paths;
}

QString contentsFolder(const SystemMap &map)
{
    const QFileInfo usual(initialContentsFolder);
    return usual.path() + u'/' + ownName(map, usual.fileName());
}

QStringList initialContents(const SystemMap &map)
{
    QStringList paths;
    for (const DataFile &file : map.initialContents)
        paths.append(contentsFolder(map) + u'/' + file.name);
    return paths;
}

} // namespace RtlPath

} // namespace TARVOORIXM1
