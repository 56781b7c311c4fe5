#pragma once

#include "core/session.h"

namespace Dpi
{

// The simulation that has been linked with this library.
CortexM1::Simulator &simulator();

} // namespace Dpi
