#pragma once

#include "config/choices.h"

#include <dev/devicearg.h>

#include <QLatin1String>
#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace TARVOORIXM1
{

// The RTL's top, and so the netlist's.
inline constexpr QLatin1String topModule("Tarvo_ORIX_M1_Top");

// What the synthesis runner is asked for.
struct SynthesisRequest {
    QString outputDir;
    QString ipName;
    QString targetName;
    DEV::DeviceArg device;
    QVariantMap options;
};

SynthesisRequest buildSynthesisRequest(const QVariantMap &ipInfo, const DEV::DeviceArg &device,
                                       const QString &tempDir, std::optional<Language> language,
                                       const QStringList &sourceFiles);

} // namespace TARVOORIXM1
