#include "synthesisrequest.h"

#include "config/optionkeys.h"

namespace TARVOORIXM1
{

SynthesisRequest buildSynthesisRequest(const QVariantMap &ipInfo, const DEV::DeviceArg &device,
                                       const QString &tempDir, std::optional<Language> language,
                                       const QStringList &sourceFiles)
{
    SynthesisRequest request;
    request.outputDir = tempDir;
    request.ipName = QStringLiteral("tv_orix_m1");
    request.targetName = ipInfo.value(InfoKey::target).toString();
    request.device = device;
    request.options = {
        {QStringLiteral("impl_name"), QString(implementationName)},
        {QStringLiteral("write_vhdl"), language && rowOf(*language).isVhdl},
        {QStringLiteral("top_module"), QString(topModule)},
        {QStringLiteral("disable_io"), true},
        {QStringLiteral("source_files"), sourceFiles},
        {QStringLiteral("ip_version"), ipInfo.value(InfoKey::version).toString()},
    };
    return request;
}

} // namespace TARVOORIXM1
