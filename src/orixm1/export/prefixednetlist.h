#pragma once

#include "format.h"

namespace TARVOORIXM1
{

// What a generation has made, under a prefix: each file with the prefix before its name, and before
// the names of the top module or entity and of the black boxes. In Verilog primitives keep their
// names, since whoever compiles two models compiles their primitives once; what a model in VHDL
// brings along has the prefix too, since a library has one unit of a name. `outputs` are files by
// their names ("tarvo_orix_m1.vho"); the result is in their order.
QVector<ExportedFile> prefixedOutputs(const QVector<ExportedFile> &outputs,
                                      const QVector<BlackBox> &blackBoxes, const QString &prefix);

} // namespace TARVOORIXM1
