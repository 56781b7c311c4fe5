#pragma once

#include "system/systemmap.h"

namespace TARVOORIXM1
{

// The processor's own registers, at the same place in every configuration and on no bus of the
// subsystem: those that ARMv6-M and the configuration give it. A peripheral with one instance like
// those of the data folder, whose names it avoids: "SCS", or "SCS_2" where something is called so.
Peripheral systemControlSpace(const SystemMap &map);

// Bytes of the system control space.
constexpr quint32 systemControlSpaceSize = 0x1000;

// What requests an interrupt, a phrase.
QString interruptPurpose(const SystemMap &map, const InterruptLine &line);

} // namespace TARVOORIXM1
