#pragma once

#include <generate/plan.h>
#include <utils/filebundle.h>

#include <QString>

namespace Cli
{

// The outputs of a plan under a prefix, as a set beside them with a manifest of its own; of those
// that only some runs make, as many as there are. A failure is a sentence: an output cannot be
// read.
Utils::Result<Utils::Bundle> prefixedSet(const TARVOORIXM1::GenerationInput &input,
                                         const TARVOORIXM1::GenerationPlan &plan,
                                         const QString &prefix);

} // namespace Cli
