#pragma once

#include "vhdlgenerics.h"
#include "vhdlsignals.h"

#include <QByteArrayList>

namespace Synthesis
{

// The ports of everything that the cells are instances of: those of the black boxes, and of
// primitives with the widths of their connections.
CellPorts cellPorts(const QVector<Design::Cell> &cells, const QVector<BlackBox> &blackBoxes);

// The instances of an architecture. Adds signals for what is connected to a constant, and to
// `crossings` the labels of the flip-flops that have crossingAttribute.
QByteArray vhdlInstances(const QVector<Design::Cell> &cells, const CellPorts &ports,
                         const VhdlGenerics &generics, VhdlSignals *nets,
                         QByteArrayList *crossings);

} // namespace Synthesis
