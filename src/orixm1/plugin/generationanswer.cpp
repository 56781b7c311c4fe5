#include "generationanswer.h"

#include "config/optionkeys.h"
#include "config/optionvalue.h"
#include "configuration.h"
#include "generate/state.h"

#include <QDir>
#include <QFileInfo>

namespace TARVOORIXM1
{

QVariantMap generationAnswer(const QString &ipcFile, const QString &ipId, const QVariantMap &ipInfo,
                             const DEV::DeviceDb &devices)
{
    const auto configuration = readConfiguration(ipcFile, ipId, devices);
    if (!configuration)
        return {{QStringLiteral("error"), configuration.reason()}};
    const OptionMap &options = configuration->options;
    const GenerationInput input{options,
                                ipInfo,
                                configuration->device,
                                effectiveTool(valueOf(options, Key::synthesisTool)),
                                effectiveLanguage(valueOf(options, Key::lang)),
                                QFileInfo(ipcFile).absolutePath()};
    const GenerationPlan plan = generationPlan(input);
    // The tool that a run would use counts as the one that the last run has used.
    ToolFacts tool;
    if (const auto manifest = readManifest(plan); manifest && *manifest && (*manifest)->synthesis) {
        tool.name = (*manifest)->synthesis->tool;
        tool.version = (*manifest)->synthesis->toolVersion;
    }
    const GenerationState state = generationState(
        input, plan, [&tool] { return tool; }, sha256, false);

    QStringList reasons;
    for (const Change &change : state.changes)
        reasons.append(change.text());
    reasons += state.messages;
    QVariantList files;
    // The folder too: for results that only some runs make.
    QStringList watched{QFileInfo(ipcFile).absoluteFilePath(), input.createInPath,
                        plan.folder + u'/' + manifestName};
    for (const FileState &file : state.files) {
        files.append(QVariantMap{{QStringLiteral("path"), file.path},
                                 {QStringLiteral("state"), stateName(file.state)}});
        watched.append(file.path);
    }
    const QString memory = textOf(options, Key::itcmInitializationPath);
    if (isOn(options, Key::initializeItcm) && !memory.isEmpty())
        watched.append(QDir::cleanPath(QDir(input.createInPath).absoluteFilePath(memory)));
    return {{QStringLiteral("error"), QString()},
            {QStringLiteral("state"), stateName(state.state())},
            {QStringLiteral("reasons"), reasons},
            {QStringLiteral("files"), files},
            {QStringLiteral("watched"), watched}};
}

} // namespace TARVOORIXM1
