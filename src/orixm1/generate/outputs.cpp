#include "outputs.h"

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
    const QLatin1String suffix = vhdl ? QLatin1String(".vhd") : QLatin1String(".v");
    const QString inTemp = tempDir + u'/' + target;
    const QString inOut = outDir + u'/' + target;

    OutputPaths paths;
    if (tool == Value::tarvoSynthesis) {
        paths.netlistSource = inTemp + (vhdl ? QLatin1String(".vhg") : QLatin1String(".vg"));
        paths.netlist = inOut + suffix;
        paths.verilogNetlist = inTemp + QLatin1String(".vg");
        if (languageIndex == 1) {
            paths.modelSource = inTemp + QLatin1String(".vho");
            paths.model = inOut + QLatin1String(".vho");
        }
    } else if (tool == Value::synplifyPro) {
        const QString inImplementation = tempDir + u'/' + implementationName + u'/' + target;
        paths.netlistSource =
            inImplementation + (vhdl ? QLatin1String(".vhm") : QLatin1String(".vm"));
        paths.netlist = inOut + suffix;
        paths.verilogNetlist = inImplementation + QLatin1String(".vm");
    }
    paths.templateSource = inTemp + QLatin1String("_tmp") + suffix;
    paths.instantiationTemplate = inOut + QLatin1String("_tmp") + suffix;
    paths.decoded = inOut + QLatin1String(".vo");
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
