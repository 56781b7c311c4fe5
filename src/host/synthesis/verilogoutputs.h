#pragma once

#include "designports.h"

#include <QByteArray>
#include <QVector>

namespace Synthesis
{

// The Verilog texts that a run leaves. Another output language is a file like this one beside it.

// `body` is the netlist as the tool wrote it; its leading comment, which names the tool's build, is
// replaced by one that says `title`. Black boxes follow as modules without contents, marked by an
// attribute.
QByteArray verilogNetlist(const QByteArray &title, const QByteArray &body,
                          const QVector<BlackBox> &blackBoxes);

// An instance of `module` to paste into a design.
QByteArray verilogTemplate(const QByteArray &module, const QVector<Port> &ports);

} // namespace Synthesis
