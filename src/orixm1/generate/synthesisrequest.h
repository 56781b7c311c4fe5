#pragma once

#include "config/latin1literal.h"
#include "config/optionmap.h"

#include <QString>
#include <QStringList>

namespace TARVOORIXM1
{

// What the synthesis runner is asked for, apart from the device.
struct SynthesisRequest {
    QString outputDir;
    QString ipName;
    QString targetName;
    QVariantMap options;
};

// `languageIndex` is that of the language choice: 0 Verilog, 1 VHDL.
SynthesisRequest buildSynthesisRequest(const QVariantMap &ipInfo, const QString &tempDir,
                                       int languageIndex, const QStringList &sourceFiles);

// The result folder of a project-based tool, below the generation folder.
inline constexpr QLatin1String implementationName = "rev_1"_l1;

} // namespace TARVOORIXM1
