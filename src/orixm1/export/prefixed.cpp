#include "prefixed.h"

#include "config/latin1literal.h"
#include "header.h"
#include "names.h"
#include "rtl.h"
#include "sourcenames.h"

#include <QFileInfo>

namespace TARVOORIXM1
{

namespace
{

// Each model of the processor plays its own script; +script names that of all which have none.
const char usualScript[] = "script=%s";

SourceNames::Verilog verilogOf(const SystemMap &map, const QString &prefix)
{
    QVector<QByteArray> sources;
    for (const HardwareFile &file : map.rtl)
        sources.append(file.bytes);
    for (const DataFile &file : map.processorModels) {
        if (file.name.endsWith(".v"_l1))
            sources.append(file.bytes);
    }
    SourceNames::Verilog names = SourceNames::verilogNames(sources);
    for (const HardwareFile &file : map.rtl)
        names.files.insert(file.name.toUtf8());
    SystemMap other;
    other.prefix = prefix;
    names.texts = {{QByteArray(initialContentsFolder.data(), initialContentsFolder.size()),
                    RtlPath::contentsFolder(other).toUtf8()},
                   {usualScript, prefix.toUtf8() + usualScript +
                                     "\", script) && !$value$plusargs(\"" + usualScript}};
    return names;
}

// What a model in VHDL declares, and what it is an architecture of.
QSet<QByteArray> vhdlNames(const SystemMap &map)
{
    QSet<QByteArray> names;
    for (const BlackBox &box : map.blackBoxes)
        names.insert(box.module.toLower().toUtf8());
    for (const DataFile &file : map.processorModels)
        names.insert(QFileInfo(file.name).completeBaseName().toLower().toUtf8());
    return names;
}

} // namespace

SystemMap prefixed(const SystemMap &map, const QString &prefix)
{
    if (prefix.isEmpty() || !map.prefix.isEmpty())
        return map;
    SystemMap result = map;
    result.prefix = prefix;
    const SourceNames::Verilog verilog = verilogOf(map, prefix);
    const QSet<QByteArray> vhdl = vhdlNames(map);
    const QByteArray before = prefix.toUtf8();
    for (HardwareFile &file : result.rtl) {
        file.name = ownName(result, file.name);
        file.bytes = SourceNames::prefixedVerilog(file.bytes, verilog, before);
    }
    for (DataFile &file : result.processorModels) {
        file.bytes = file.name.endsWith(".v"_l1)
                         ? SourceNames::prefixedVerilog(file.bytes, verilog, before)
                         : SourceNames::prefixedVhdl(file.bytes, vhdl, before);
        file.name = ownName(result, file.name);
    }
    for (BlackBox &box : result.blackBoxes)
        box.module = ownName(result, box.module);
    return result;
}

QVector<ExportedFile> prefixedC(const SystemMap &map, const QVector<ExportedFile> &files,
                                const QSet<QByteArray> &names)
{
    if (map.prefix.isEmpty())
        return files;
    QSet<QByteArray> included{"tarvo_orix_m1.h"};
    for (const ExportedFile &file : files)
        included.insert(QFileInfo(file.path).fileName().toUtf8());
    const QSet<QByteArray> all = names + SourceNames::declaredInC(usualHeader(map));
    QVector<ExportedFile> result;
    for (const ExportedFile &file : files) {
        const QFileInfo path(file.path);
        const QString name = ownName(map, path.fileName());
        result.append({path.path() == "."_l1 ? name : QString(path.path() + u'/' + name),
                       SourceNames::prefixedC(file.bytes, all, included, map.prefix.toUtf8())});
    }
    return result;
}

QString exportManifestOf(const SystemMap &map)
{
    return ownName(map, exportManifest);
}

} // namespace TARVOORIXM1
