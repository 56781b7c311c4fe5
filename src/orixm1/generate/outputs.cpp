#include "outputs.h"

#include <utils/fileutils.h>

#include <QFileInfo>

namespace TARVOORIXM1
{

Outputs buildOutputs(std::optional<Tool> tool, std::optional<Language> language,
                     const QString &tempDir, const QString &outDir, const QString &target)
{
    const Language naming = namingLanguage(language);
    const QLatin1String suffix = rowOf(naming).suffix;
    const QString templateName = target + "_tmp"_l1 + suffix;
    Output netlist;
    Output model;
    Outputs outputs;
    if (tool) {
        const ToolRow &row = rowOf(*tool);
        const QString results =
            row.resultFolder.isEmpty() ? tempDir : QString(tempDir + u'/' + row.resultFolder);
        const QString made = results + u'/' + target;
        netlist = {made + netlistSuffix(*tool, naming), outDir + u'/' + target + suffix};
        outputs.verilogNetlist = made + netlistSuffix(*tool, Language::Verilog);
        const QLatin1String modelEnd = language ? modelSuffix(*tool, *language) : QLatin1String();
        if (!modelEnd.isEmpty())
            model = {made + modelEnd, outDir + u'/' + target + modelEnd, true};
    }
    outputs.copied = {netlist, {tempDir + u'/' + templateName, outDir + u'/' + templateName}};
    if (!model.source.isEmpty())
        outputs.copied.append(model);
    outputs.netlist = netlist.file;
    outputs.instantiationTemplate = outputs.copied.at(1).file;
    outputs.decoded = outDir + u'/' + target + ".vo"_l1;
    return outputs;
}

Collection collectOutputs(int exitCode, const QStringList &details, const Outputs &outputs,
                          const QString &outDir, const Decoder &decode)
{
    Collection result;
    result.status = exitCode;
    if (exitCode != 0) {
        result.errors = details;
        return result;
    }
    bool isWhole = true; // what every run makes
    for (const Output &output : outputs.copied) {
        if (output.isOptional ? !QFileInfo::exists(output.source) : !isWhole)
            continue;
        QString reason;
        if (Utils::FileUtils::copyFile(output.source, output.file, &reason)) {
            result.files.append(output.file);
            continue;
        }
        isWhole = false;
        result.errors.append(reason);
        result.status = -1;
    }
    if (result.status != 0)
        return result;
    QString message;
    result.status = decode(outDir, outputs.verilogNetlist, outputs.decoded, message);
    result.errors.append(message);
    if (result.status == 0)
        result.files.append(outputs.decoded);
    return result;
}

} // namespace TARVOORIXM1
