#pragma once

#include "config/optionmap.h"

#include <QString>

namespace TARVOORIXM1
{

// What the core page stores if it is opened on these options for a device and closed with OK at
// once: every key that it writes except those of the ITCM's initialisation folder, which depend on
// the output folder. A value that no dialog offers becomes what the page makes of it; a size that
// its list lacks may become -1, nothing selected.
OptionMap acceptedCoreOptions(const OptionMap &options, const QString &device);

} // namespace TARVOORIXM1
