#pragma once

#include "config/choices.h"
#include "config/optionmap.h"
#include "defines.h"
#include "outputs.h"
#include "synthesisrequest.h"

#include <dev/devicearg.h>

#include <QString>
#include <QStringList>
#include <QVector>

namespace TARVOORIXM1
{

// What a generation is made from.
struct GenerationInput {
    OptionMap options;
    QVariantMap ipInfo; // the descriptor
    DEV::DeviceArg device;
    std::optional<Tool> tool;
    std::optional<Language> language;
    QString createInPath; // the output folder
};

// A generation as a value: what is written, what is compiled, what the tool is asked for and what
// is collected. Whoever carries it out decides nothing.
struct GenerationPlan {
    QString folder;                    // of the generated files
    QVector<IncludeFile> includeFiles; // in the order in which they are written
    QStringList sources;               // full paths, in the order of compilation
    SynthesisRequest request;
    Outputs outputs;

    QString pathOf(const IncludeFile &file) const { return folder + u'/' + file.name; }
};

// Writes nothing and reads no file: of the disk only the names in the IP's data folder matter, to
// which a generation does not add. So it is the same before the first file and after the last.
GenerationPlan generationPlan(const GenerationInput &input);

// The outputs of a plan alone, for those who ask what is selected when a run has ended.
Outputs plannedOutputs(const GenerationInput &input);

} // namespace TARVOORIXM1
