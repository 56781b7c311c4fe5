#include "outputs.h"

#include "config/latin1literal.h"
#include "config/optionkeys.h"
#include "synthesisrequest.h"

#include <utils/fileutils.h>

#include <QFileInfo>

namespace TARVOORIXM1
{

using Utils::FileUtils;

OutputPaths outputPaths(const QString &tool, int languageIndex, const QString &tempDir,
                        const QString &outDir, const QString &target)
{
    const bool vhdl = languageIndex != 0;
    const QLatin1String suffix = vhdl ? ".vhd"_l1 : ".v"_l1;
    const QString inTemp = tempDir + u'/' + target;
    const QString inOut = outDir + u'/' + target;

    OutputPaths paths;
    if (tool == Value::tarvoSynthesis) {
        paths.netlistSource = inTemp + (vhdl ? ".vhg"_l1 : ".vg"_l1);
        paths.netlist = inOut + suffix;
        paths.verilogNetlist = inTemp + ".vg"_l1;
        if (languageIndex == 1) {
            paths.modelSource = inTemp + ".vho"_l1;
            paths.model = inOut + ".vho"_l1;
        }
    } else if (tool == Value::synplifyPro) {
        const QString inImplementation = tempDir + u'/' + implementationName + u'/' + target;
        paths.netlistSource = inImplementation + (vhdl ? ".vhm"_l1 : ".vm"_l1);
        paths.netlist = inOut + suffix;
        paths.verilogNetlist = inImplementation + ".vm"_l1;
    }
    paths.templateSource = inTemp + "_tmp"_l1 + suffix;
    paths.instantiationTemplate = inOut + "_tmp"_l1 + suffix;
    paths.decoded = inOut + ".vo"_l1;
    return paths;
}

Collection collectOutputs(int exitCode, const QStringList &details, const OutputPaths &paths,
                          const QString &outDir, const Decoder &decode)
{
    Collection result;
    result.status = exitCode;
    if (exitCode != 0) {
        result.errors = details;
        return result;
    }
    const auto failed = [&result](const QString &reason) {
        result.errors.append(reason);
        result.status = -1;
    };
    QString reason;
    if (!FileUtils::copyFile(paths.netlistSource, paths.netlist, &reason) ||
        !FileUtils::copyFile(paths.templateSource, paths.instantiationTemplate, &reason))
        failed(reason);
    reason.clear();
    if (!paths.modelSource.isEmpty() && QFileInfo::exists(paths.modelSource) &&
        !FileUtils::copyFile(paths.modelSource, paths.model, &reason))
        failed(reason);
    if (result.status == 0) {
        QString message;
        result.status = decode(outDir, paths.verilogNetlist, paths.decoded, message);
        result.errors.append(message);
    }
    return result;
}

} // namespace TARVOORIXM1
