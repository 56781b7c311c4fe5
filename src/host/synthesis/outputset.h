#pragma once

#include "flow.h"

namespace Synthesis
{

// Puts finished files at their places: all of them are on the disk in the scratch folder before the
// first one is renamed, so that a run that is killed leaves nothing beside its outputs, and a file
// that holds the same bytes already is not touched. Empty on success, otherwise one sentence.
QString placeOutputs(const QVector<Output> &outputs, const ScratchFolder &scratch);

} // namespace Synthesis
