#pragma once

#include "runreport.h"

#include <utils/result.h>

#include <QByteArray>
#include <QMap>

namespace Synthesis
{

// What the instances of a netlist, counted by name, take of a device: one row for each resource
// that primitives of the library use, in a fixed order, zeros included.
QList<ResourceUse> resourceUse(const QMap<QByteArray, int> &instances,
                               const DEV::DeviceResources &totals);

// The names of these resources, in their order.
TARVO_SYNTHESIS_EXPORT QStringList resourceNames();

// "Used 120 LUT4, 64 Flip-flops." with the percentages where totals are known; resources that are
// not used are left out.
QString usedSentence(const QList<ResourceUse> &resources);

// "Not counted are the contents of black boxes: 1 CortexM1Core, 2 Analog." Empty if the netlist has
// no black box, so that the totals are whole.
TARVO_SYNTHESIS_EXPORT QString notCountedSentence(const QList<CellCount> &cells);

// What a netlist instantiates, and what that takes of a device.
struct NetlistUse {
    QList<CellCount> cells; // sorted by name
    QList<ResourceUse> resources;
};

// Counts what `instances` of primitives and black boxes take.
NetlistUse netlistUse(const QMap<QByteArray, int> &instances, const DEV::DeviceResources &totals);

// Reads a file that a run has left in Verilog, the netlist or the simulation model, and counts what
// stands below its module `top`. A failure is a sentence with path and reason.
TARVO_SYNTHESIS_EXPORT Utils::Result<NetlistUse>
readNetlistUse(const QString &path, const QByteArray &top, const DEV::DeviceResources &totals);

} // namespace Synthesis
