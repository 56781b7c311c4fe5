#pragma once

#include "format.h"
#include "generate/disk.h"
#include "generate/plan.h"

#include <utils/filebundle.h>

namespace TARVOORIXM1
{

// What a generation has made, under a prefix: each file with the prefix before its name, and before
// the names of the top module or entity and of the black boxes. In Verilog primitives keep their
// names, since whoever compiles two models compiles their primitives once; what a model in VHDL
// brings along has the prefix too, since a library has one unit of a name. `outputs` are files by
// their names ("tarvo_orix_m1.vho"); the result is in their order.
QVector<ExportedFile> prefixedOutputs(const QVector<ExportedFile> &outputs,
                                      const QVector<BlackBox> &blackBoxes, const QString &prefix);

// The file beside the outputs under a prefix that says what was written, for the next run.
QString netlistManifestOf(const QString &prefix);

// The outputs of a plan under a prefix, as a set beside them; of those that only some runs make, as
// many as there are. A failure is a sentence: an output cannot be read.
Utils::Result<Utils::Bundle> prefixedSet(const GenerationInput &input, const GenerationPlan &plan,
                                         const QString &prefix, const Disk &disk = Disk());

} // namespace TARVOORIXM1
