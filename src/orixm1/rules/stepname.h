#pragma once

#include "config/optionmap.h"

#include <QString>

namespace TARVOORIXM1
{

// A few words for what makes one configuration the other: "UART0 on", "Memory: ITCM 32 KB". What
// counts is what the dialogs show of either. Where they show the same, so that only what was
// taken for absent keys is stored now, the block whose options those are: "GPIO confirmed". Never
// empty, also for maps that no dialog makes; of many changes, the first and how many more.
QString stepName(const OptionMap &before, const OptionMap &after);

} // namespace TARVOORIXM1
