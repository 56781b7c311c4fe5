#include "prefixedset.h"

#include <export/prefixednetlist.h>
#include <generate/manifest.h>
#include <utils/fileutils.h>

#include <QFileInfo>

namespace Cli
{

using namespace TARVOORIXM1;

Utils::Result<Utils::Bundle> prefixedSet(const GenerationInput &input, const GenerationPlan &plan,
                                         const QString &prefix)
{
    QStringList paths;
    for (const Output &output : plan.outputs.copied) {
        if (!output.isOptional || QFileInfo::exists(output.file))
            paths.append(output.file);
    }
    paths.append(plan.outputs.decoded);
    QVector<ExportedFile> outputs;
    for (const QString &path : qAsConst(paths)) {
        ExportedFile output{belowOutput(path, input.createInPath), {}};
        QString error;
        if (!Utils::FileUtils::readFile(path, &output.bytes, &error))
            return Utils::Failure{error};
        outputs.append(output);
    }
    const QString group = QStringLiteral("netlist");
    Utils::Bundle bundle{
        input.createInPath, prefix + QLatin1String("orixm1-netlist.json"), {}, {group}, false};
    const QVector<ExportedFile> own =
        prefixedOutputs(outputs, blackBoxesOf(input.options, input.device.device()), prefix);
    for (const ExportedFile &file : own)
        bundle.files.append({file.path, file.bytes, group});
    return bundle;
}

} // namespace Cli
