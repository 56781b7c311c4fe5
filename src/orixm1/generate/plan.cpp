#include "plan.h"

#include "config/optionkeys.h"
#include "rules/generationfolder.h"
#include "sourcefiles.h"

namespace TARVOORIXM1
{

GenerationPlan generationPlan(const GenerationInput &input)
{
    GenerationPlan plan;
    plan.folder = generationFolder(input.createInPath);
    plan.includeFiles = buildIncludeFiles(input.options, input.device);
    plan.sources =
        buildSourceFiles(input.options, input.ipInfo, input.device.device(), plan.folder);
    plan.request = buildSynthesisRequest(input.ipInfo, input.device, plan.folder, input.language,
                                         plan.sources);
    plan.outputs = plannedOutputs(input);
    return plan;
}

Outputs plannedOutputs(const GenerationInput &input)
{
    return buildOutputs(input.tool, input.language, generationFolder(input.createInPath),
                        input.createInPath, input.ipInfo.value(InfoKey::target).toString());
}

} // namespace TARVOORIXM1
