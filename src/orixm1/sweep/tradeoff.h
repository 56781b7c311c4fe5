#pragma once

#include "table.h"

#include <QByteArray>

namespace TARVOORIXM1
{

// The points that have figures as an SVG picture: one resource over the other, or one over the
// points; what is left of a choice is LUT4 and flip-flops. Marks tell the devices apart, numbers
// lead to a list of the points below.
QByteArray tradeOffPicture(const SweepTable &table);

} // namespace TARVOORIXM1
