#pragma once

#include "config/optionmap.h"

#include <dev/devicearg.h>

namespace TARVOORIXM1
{

// A configuration in which the check finds nothing, drawn for a device: the same one for the same
// seed on every machine. Some have little on, others nearly everything; keys may be absent where
// that says the same to generation and to the dialogs. The ITCM is not initialised, which would
// need files.
OptionMap randomOptions(quint64 seed, const DEV::DeviceArg &device);

} // namespace TARVOORIXM1
