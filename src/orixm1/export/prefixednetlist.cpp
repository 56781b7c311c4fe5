#include "prefixednetlist.h"

#include "config/choices.h"
#include "config/latin1literal.h"
#include "generate/manifest.h"
#include "generate/synthesisrequest.h"
#include "sourcenames.h"

#include <QStringList>

namespace TARVOORIXM1
{

QVector<ExportedFile> prefixedOutputs(const QVector<ExportedFile> &outputs,
                                      const QVector<BlackBox> &blackBoxes, const QString &prefix)
{
    SourceNames::Verilog verilog;
    QSet<QByteArray> vhdl;
    const auto add = [&](const QByteArray &name) {
        verilog.modules.insert(name);
        vhdl.insert(name.toLower());
    };
    add(QByteArray(topModule.data(), topModule.size()));
    for (const BlackBox &box : blackBoxes)
        add(box.module.toUtf8());
    const QByteArray before = prefix.toUtf8();
    QVector<ExportedFile> result;
    for (const ExportedFile &output : outputs) {
        const bool isVhdl = output.path.endsWith(".vhd"_l1) || output.path.endsWith(".vho"_l1);
        result.append(
            {prefix + output.path,
             isVhdl ? SourceNames::prefixedVhdl(
                          output.bytes, vhdl + SourceNames::unitsOfVhdl(output.bytes), before)
                    : SourceNames::prefixedVerilog(output.bytes, verilog, before)});
    }
    return result;
}

QString netlistManifestOf(const QString &prefix)
{
    return prefix + "orixm1-netlist.json"_l1;
}

Utils::Result<Utils::Bundle> prefixedSet(const GenerationInput &input, const GenerationPlan &plan,
                                         const QString &prefix, const Disk &disk)
{
    QStringList paths;
    for (const Output &output : plan.outputs.copied) {
        if (!output.isOptional || disk.exists(output.file))
            paths.append(output.file);
    }
    paths.append(plan.outputs.decoded);
    QVector<ExportedFile> outputs;
    for (const QString &path : qAsConst(paths)) {
        const Utils::Result<QByteArray> bytes = disk.read(path);
        if (!bytes)
            return Utils::Failure{bytes.reason()};
        outputs.append({belowOutput(path, input.createInPath), *bytes});
    }
    const QString group = QStringLiteral("netlist");
    Utils::Bundle bundle{input.createInPath, netlistManifestOf(prefix), {}, {group}, false};
    const QVector<ExportedFile> own =
        prefixedOutputs(outputs, blackBoxesOf(input.options, input.device.device()), prefix);
    for (const ExportedFile &file : own)
        bundle.files.append({file.path, file.bytes, group});
    return bundle;
}

} // namespace TARVOORIXM1
