#pragma once

#include "flow.h"

namespace Synthesis
{

// Puts finished files at their places: all of them are on the disk under other names before the
// first one is renamed, and a file that holds the same bytes already is not touched. Empty on
// success, otherwise one sentence.
QString placeOutputs(const QVector<Output> &outputs);

} // namespace Synthesis
