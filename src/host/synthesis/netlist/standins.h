#pragma once

#include "designports.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QVector>

namespace Synthesis
{

// What stands in a simulation model for a block that the netlist leaves empty. A slave of AHB-Lite
// or APB, known by its pins, answers each access with an error response and a message, and its
// other outputs are 0; of any other block there is one message, and its outputs are open.

// The items of the module, each line indented by four blanks.
QByteArray verilogStandIn(const QByteArray &module, const QVector<Port> &ports);

// The architecture of the entity `name`; `names` has those of its ports, in the form of the
// language.
QByteArray vhdlStandIn(const QByteArray &name, const QVector<Port> &ports,
                       const QByteArrayList &names);

} // namespace Synthesis
