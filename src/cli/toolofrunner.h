#pragma once

#include <config/choices.h>
#include <synthesis/runreport.h>

namespace Cli
{

inline Synthesis::Tool toolOfRunner(TARVOORIXM1::Tool tool)
{
    switch (tool) {
    case TARVOORIXM1::Tool::TarvoSynthesis:
        return Synthesis::Tool::TarvoSynthesis;
    case TARVOORIXM1::Tool::SynplifyPro:
        break;
    }
    return Synthesis::Tool::SynplifyPro;
}

} // namespace Cli
