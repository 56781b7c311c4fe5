#pragma once

#include "config/optionmap.h"

#include <QString>

namespace TARVOORIXM1
{

// A configuration for a device name that generates what the dialogs would give for the same
// choices: opening the core page and the blocks' dialogs on an empty map, setting these, OK. Holds
// the choices as they are, also those that no dialog offers, and of the other keys those whose
// absence would mean something else to generation than to the dialogs. `createIn` is the output
// folder, absolute.
OptionMap optionsForChoices(const OptionMap &choices, const QString &device,
                            const QString &createIn);

// A configuration with further choices. A memory is inside or outside: choosing one is giving up
// the other, unless the choices name both.
OptionMap withChoices(const OptionMap &options, const OptionMap &choices);

} // namespace TARVOORIXM1
